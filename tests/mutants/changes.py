"""Every small change to a source that a test should notice."""
import collections
import re

import cpp_text

# At `start` of the text, up to `end`, stands `new` instead.
Change = collections.namedtuple("Change", "start end new kind")

OPERATORS = {
    "+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["*"],
    "+=": ["-="], "-=": ["+="], "*=": ["/="], "/=": ["*="],
    "<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="], ">=": [">", "<"],
    "==": ["!="], "!=": ["=="], "&&": ["||"], "||": ["&&"], "&": ["|"],
}
PAIRS = [
    ("true", "false"), ("x", "y"), ("left", "top"), ("right", "bottom"),
    ("left", "right"), ("top", "bottom"), ("lowest", "highest"),
    ("min", "max"), ("fabs", ""), ("trunc", "round"), ("continue", "break"),
]
# Parts of names that come in twos: a name changes into its twin where the file has it.
TWINS = [
    ("X", "Y"), ("Width", "Height"), ("width", "height"), ("Left", "Top"),
    ("Right", "Bottom"), ("Red", "Green"), ("red", "green"), ("green", "blue"),
    ("Green", "Blue"), ("Main", "Sub"), ("main", "sub"), ("title", "fileName"),
    ("Title", "FileName"), ("Title", "File"), ("Row", "Swatch"), ("Top", "Bottom"),
    ("rows", "gaps"), ("right", "down"), ("Paper", "Screen"),
]
GDIPLUS_OBJECT = re.compile(
    r"(const )?(Gdiplus::(Pen|SolidBrush|Font|FontFamily|GraphicsPath|Matrix|StringFormat|"
    r"AdjustableArrowCap)|(map_surround::)?(LetterFont|Lettering|Ruler)) \w+")


class Siblings:
    """Constants that stand for one another: those of an enumeration, and those of one
    type in a file."""

    def __init__(self, texts):
        self.next = {}
        for text in texts:
            plain = re.sub(r"//[^\n]*", "", text)
            for body in re.findall(r"\benum\s+(?:class\s+)?\w*\s*(?::[\s\w:]+)?\{([^}]*)\}", plain):
                self._ring(re.findall(r"(?:^|,)\s*(\w+)", body))
            by_type = collections.defaultdict(list)
            for kind, name in re.findall(r"\bconstexpr ([\w:<>, ]+?) (k\w+)\b", plain):
                by_type[kind].append(name)
            for names in by_type.values():
                self._ring(names)

    def _ring(self, names):
        names = [name for name in names if "Reserved" not in name]
        for i, name in enumerate(names):
            if len(names) > 1:
                self.next.setdefault(name, names[(i + 1) % len(names)])


def changes_of(text, siblings):
    """All changes to a source, in the order of the text."""
    tokens = cpp_text.tokens_of(text)
    partner = cpp_text.partners(tokens)
    finder = Finder(text, tokens, partner, siblings)
    seen, unique = set(), []
    for change in sorted(finder.all()):
        key = (change.start, change.end, change.new)
        if key not in seen and text[change.start : change.end] != change.new:
            seen.add(key)
            unique.append(change)
    return unique


class Finder:
    def __init__(self, text, tokens, partner, siblings):
        self.text, self.tokens, self.partner = text, tokens, partner
        self.siblings = siblings
        self.words = {token.text for token in tokens if token.kind == "word"}

    def all(self):
        for i, token in enumerate(self.tokens):
            if token.kind == "number":
                yield from self.number(token)
            elif token.kind == "string":
                yield Change(token.start, token.end, token.text[:-1] + 'x"', "text")
            elif token.kind == "word":
                yield from self.name(i, token)
            else:
                yield from self.mark(i, token)
        yield from self.statements()

    def at(self, i):
        return self.tokens[i].text if 0 <= i < len(self.tokens) else ""

    def span(self, first, last):
        """The text from one token up to before another."""
        return self.text[self.tokens[first].start : self.tokens[last - 1].end]

    def over(self, first, last, new, kind):
        return Change(self.tokens[first].start, self.tokens[last - 1].end, new, kind)

    def number(self, token):
        if token.text.lower().startswith("0x"):
            digits = token.text.rstrip("uUlL")
            for change in (1, 1 << 24) if len(digits) == 10 else (1,):
                new = f"0x{int(digits, 16) ^ change:0{len(digits) - 2}X}"
                yield Change(token.start, token.end, new + token.text[len(digits):], "constant")
            return
        digits, suffix = re.fullmatch(r"([\d.]+(?:[eE][+-]?\d+)?)(\w*)", token.text).groups()
        if digits.isdigit():
            others = {str(int(digits) + 1)} | ({"0"} if digits == "1" else set())
        else:
            mantissa, _, power = digits.partition("e")
            others = {last_digit_up(mantissa) + (f"e{power}" if power else "")}
            if not power:
                others.add(str(float(digits) + 1))
            if digits == "1.0":
                others.add("0.0")
            if suffix in ("f", "F"):
                yield Change(token.start, token.end, digits, "cast")
        for other in others:
            yield Change(token.start, token.end, other + suffix, "constant")

    def name(self, i, token):
        def to(new, kind):
            return Change(token.start, token.end, new, kind)

        for one, other in PAIRS:
            if token.text in (one, other):
                yield to(other if token.text == one else one, "name")
        for one, other in TWINS:
            for part, twin in ((one, other), (other, one)):
                if part in token.text:
                    new = token.text.replace(part, twin)
                    if new in self.words:
                        yield to(new, "name")
        declares = self.at(i + 1) in ("=", "{", "[") and self.at(i - 2) != "="
        if token.text in self.siblings.next and not declares:
            yield to(self.siblings.next[token.text], "sibling")

        if token.text == "static_cast":
            opening = next(k for k in range(i, len(self.tokens)) if self.at(k) == "(")
            last = self.partner[opening] + 1
            yield self.over(i, last, self.span(opening, last), "cast")
        elif token.text == "Length" and self.at(i + 1) == "{":
            last = self.partner[i + 1] + 1
            yield self.over(i, last, f"({self.span(i + 2, last - 1)})", "cast")
        elif token.text == "Truncate" and self.at(i + 1) == "(":
            yield to("__builtin_lround", "rounding")
        elif token.text == "ToDevice" and self.at(i + 1) == "(":
            yield to("static_cast<std::int32_t>", "rounding")
        elif token.text in cpp_text.CONTROL and self.at(i + 1) == "(":
            yield from self.condition(i)

    def condition(self, i):
        first, last = i + 2, self.partner[i + 1]
        if self.at(i) == "if":
            yield self.over(first, last, "true", "condition")
        if self.at(i) in ("if", "while"):
            yield self.over(first, last, "false", "condition")

    def mark(self, i, token):
        def to(new, kind):
            return Change(token.start, token.end, new, kind)

        if token.spaced:
            for new in OPERATORS.get(token.text, []):
                yield to(new, "operator")
            if (token.text in "+-" and self.tokens[i + 1].kind == "number"
                    and self.at(i + 2) not in ("*", "/")):
                yield Change(self.tokens[i - 1].end, self.tokens[i + 1].end, "", "rounding")
            if token.text in "*/":
                yield from self.order_of_division(i)
        elif token.text == "!" or token.text == "-" and self.at(i + 1) != ")":
            yield to("", "operator")
        elif token.text in ("++", "--"):
            yield to("--" if token.text == "++" else "++", "operator")
        if token.text in ("(", "{") and i in self.partner:
            yield from self.arguments(i)

    def order_of_division(self, i):
        """a * b / c as a * (b / c), and a / b * c as a * c / b."""
        before, first = self.operand_before(i), i + 1
        middle = self.operand_after(first)
        if middle < len(self.tokens) and self.at(middle) in "*/" and self.at(middle) != self.at(i):
            last = self.operand_after(middle + 1)
            a, b, c = (self.span(*part) for part in
                       ((before, i), (first, middle), (middle + 1, last)))
            new = f"{a} * ({b} / {c})" if self.at(i) == "*" else f"{a} * {c} / {b}"
            yield self.over(before, last, new, "rounding")

    def operand_after(self, i):
        """The index behind an operand that starts here."""
        if self.at(i) == "(":
            return self.partner[i] + 1
        i += 1
        while self.at(i) in (".", "->", "::", "(", "<") and not self.tokens[i].spaced:
            if self.at(i) == "(":
                i = self.partner[i] + 1
            elif self.at(i) == "<":
                i = next(k for k in range(i, len(self.tokens)) if self.at(k) == ">") + 1
            else:
                i += 2
        return i

    def operand_before(self, i):
        """The index at which the operand starts that ends before here."""
        i -= 1
        if self.at(i) == ")":
            i = next(k for k, last in self.partner.items() if last == i)
            if self.at(i - 1) == ">":
                i = next(k for k in range(i, -1, -1) if self.at(k) == "static_cast")
            elif self.tokens[i - 1].kind == "word":
                i -= 1
        while self.at(i - 1) in (".", "->", "::"):
            i -= 2
        return i

    def arguments(self, opening):
        before, behind = self.at(opening - 1), self.at(self.partner[opening] + 1)
        if before in cpp_text.CONTROL or self.at(opening) == "(" and behind in (
            "{", "const", "override", ":"):
            return
        parts = cpp_text.items(self.tokens, self.partner, opening)
        for one, other in zip(parts, parts[1:]):
            a, b = self.span(*one), self.span(*other)
            named = "=" in a and "=" in b  # enumerators that say which they are
            if ";" not in a + b and not named:
                between = self.text[self.tokens[one[1] - 1].end : self.tokens[other[0]].start]
                yield self.over(one[0], other[1], b + between + a, "argument order")

    def statements(self):
        for block in cpp_text.statements(self.tokens, self.partner):
            for statement in block:
                if statement and self.can_go(self.span(*statement)):
                    yield self.over(*statement, ";", "statement")
            for one, other in zip(block, block[1:]):
                a, b = (self.span(*part) if part else "" for part in (one, other))
                if self.acts(a) and self.acts(b) and not self.are_apart(a, b):
                    between = self.text[self.tokens[one[1] - 1].end : self.tokens[other[0]].start]
                    yield self.over(one[0], other[1], b + between + a, "call order")

    @staticmethod
    def are_apart(one, other):
        """Two fields of an element that are set, two variables that are counted: in
        whatever order."""
        sets = re.compile(r"Set\w+\([\w.]+\);$")
        counts = re.compile(r"(?:\+\+|--)?([\w.]+)(?:;$| [-+*/]= [\w.]+;$)")
        a, b = counts.match(one), counts.match(other)
        return bool(sets.match(one) and sets.match(other)
                    or a and b and not re.search(rf"\b{a.group(1)}\b", other)
                    and not re.search(rf"\b{b.group(1)}\b", one))

    @staticmethod
    def can_go(statement):
        declares = r"(?!delete )(const|constexpr|auto|using|static_assert|return|[\w:<>]+[*&]?) \w"
        return not re.match(declares, statement)

    @staticmethod
    def acts(statement):
        call = re.match(r"[\w:.>-]+\(.*\);$", statement, re.DOTALL)
        counts = re.match(r"[\w.]+ [-+*/]= |\+\+|--", statement)
        return call or counts or GDIPLUS_OBJECT.match(statement)


def last_digit_up(decimal):
    """5.8 as 5.9, 0.09 as 0.10."""
    places = len(decimal.partition(".")[2])
    return f"{(int(decimal.replace('.', '')) + 1) / 10 ** places:.{places}f}"
