"""Reads the list of changes that no test can notice."""
import re


class Equivalents:
    """Patterns by file: a change is explained by one that finds itself in its lines."""

    def __init__(self, path):
        self.patterns, self.used, file = [], set(), ""
        for line in path.read_text().splitlines():
            if line.startswith("~ "):
                self.patterns.append((file, line[2:]))
            elif line and not line.startswith((" ", "#")):
                file = line

    def explain(self, mutant):
        for file, pattern in self.patterns:
            if file == mutant.name and re.search(pattern, mutant.lines):
                self.used.add((file, pattern))
                return True
        return False

    def unused(self):
        return [entry for entry in self.patterns if entry not in self.used]
