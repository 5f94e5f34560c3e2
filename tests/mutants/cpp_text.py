"""C++ text as tokens, and where its brackets and statements stand."""
import collections
import re

Token = collections.namedtuple("Token", "kind text start end spaced")

TOKEN = re.compile(
    r"""
    (?P<comment>//[^\n]*|/\*.*?\*/)
  | (?P<directive>^[ \t]*\#(?:\\\n|[^\n])*)
  | (?P<string>(?:u8|[LuU])?"(?:\\.|[^"\\\n])*")
  | (?P<character>[LuU]?'(?:\\.|[^'\\\n])*')
  | (?P<number>(?:0[xX][\da-fA-F]+|(?:\d+\.?\d*|\.\d+)(?:[eE][+-]?\d+)?)[a-zA-Z]*)
  | (?P<word>[A-Za-z_]\w*)
  | (?P<mark>::|->|\+\+|--|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|[-+*/%=<>!~&|^?:;,.(){}\[\]])
  | (?P<space>\s+)
    """,
    re.VERBOSE | re.MULTILINE | re.DOTALL,
)

CLOSERS = {"(": ")", "{": "}", "[": "]"}
CONTROL = {"if", "for", "while", "switch"}


def tokens_of(text):
    """What the compiler sees, but for directives. A mark is spaced when there is white
    space on both sides of it: in formatted text that tells operators from the rest."""
    found = []
    for match in TOKEN.finditer(text):
        if match.lastgroup in ("comment", "directive", "space"):
            continue
        around = text[match.start() - 1 : match.start()] + text[match.end() : match.end() + 1]
        spaced = len(around) == 2 and around.isspace()
        found.append(Token(match.lastgroup, match.group(), match.start(), match.end(), spaced))
    return found


def partners(tokens):
    """The index of the closing bracket for each opening one."""
    found, open_ones = {}, []
    for i, token in enumerate(tokens):
        if token.kind != "mark":
            continue
        if token.text in CLOSERS:
            open_ones.append(i)
        elif open_ones and token.text == CLOSERS[tokens[open_ones[-1]].text]:
            found[open_ones.pop()] = i
    return found


def items(tokens, partner, opening):
    """The ranges of tokens between the commas of a bracket."""
    closing = partner[opening]
    found, first, i = [], opening + 1, opening + 1
    while i < closing:
        if tokens[i].text == ",":
            found.append((first, i))
            first = i + 1
        i = partner.get(i, i) + 1
    if first < closing:
        found.append((first, closing))
    return found


def statements(tokens, partner):
    """The blocks of code, each a list of statements in order: ranges of tokens, the
    semicolon included. A block within a statement is one of its own."""
    blocks = []

    def is_code(opening):
        before = tokens[opening - 1].text if opening else ""
        return before in (")", "const", "override", "else", "do")

    def walk(first, last, code):
        block, start, i = [], first, first
        while i < last:
            text = tokens[i].text
            if text in CONTROL and tokens[i + 1].text == "(":
                i = partner[i + 1] + 1
                start = i
                continue
            if text == "{":
                walk(i + 1, partner[i], is_code(i) or code and tokens[i - 1].text in "{};")
                i = partner[i]
                if tokens[min(i + 1, last - 1)].text not in (";", ",", "."):
                    start = i + 1
                    block.append(None)  # what stands on both sides is not adjacent
            elif text in ("(", "["):
                i = partner[i]
            elif text == ";":
                if code and i > start:
                    block.append((start, i + 1))
                start = i + 1
            elif text in ("else", "do") or text == ":" and tokens[i - 1].text in (
                "public", "private", "protected"):
                start = i + 1
            i += 1
        if code:
            blocks.append(block)

    walk(0, len(tokens), False)
    return blocks
