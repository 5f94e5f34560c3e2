"""Reads the list of changes that no test can notice."""


def read(path):
    """(file, line before, line after, occurrence) of each. The list is in blocks: the file,
    with (2) behind it for the second time that its line stands in it, the line before and
    after the change, and indented below the reason, which may stand for several changes."""
    found, name, before = set(), "", ""
    for line in path.read_text().splitlines():
        if line.startswith("- "):
            before = line[2:]
        elif line.startswith("+ "):
            file, _, occurrence = name.partition(" ")
            found.add((file, before, line[2:], int(occurrence.strip("()") or 1)))
        elif line and not line.startswith((" ", "#")):
            name = line
    return found
