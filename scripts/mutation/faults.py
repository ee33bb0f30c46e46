"""Small faults that one might make in C++: where in a source they can be made, and what would stand there then.

A lexer, and a parser that knows just enough to tell code from declarations. Both count on the tree's clang-format: an
operator between two operands has blanks on both sides; a template's bracket, a pointer's star and a sign have not.
"""

import bisect
import dataclasses
import re


@dataclasses.dataclass(frozen=True)
class Site:
    """A place in a source, and all that one of the faults of one kind would put there."""

    kind: str
    begin: int
    end: int
    replacements: tuple


@dataclasses.dataclass
class Token:
    kind: str  # word, number, string or sign
    text: str
    begin: int
    end: int
    spaced: bool  # blanks on both sides
    glued: bool  # no blank before it
    partner: int = -1  # the other bracket, as an index
    dead: bool = False  # no fault is made here
    code: bool = False  # in a function's body


LEXEME = re.compile(
    r"""
    (?P<comment>//(?:\\\n|[^\n])*|/\*.*?\*/)
  | (?P<directive>^[ \t]*\#(?:\\\n|/\*.*?\*/|[^\n])*)
  | (?P<string>(?:u8|[uUL])?R"(?P<delimiter>[^()\\\s]*)\(.*?\)(?P=delimiter)"
             |(?:u8|[uUL])?"(?:\\.|[^"\\\n])*"|(?:u8|[uUL])?'(?:\\.|[^'\\\n])+')
  | (?P<number>0[xX][\da-fA-F'.]+(?:[pP][+-]?\d+)?\w*|\.?\d(?:[eE][+-]|'?[\w.])*)
  | (?P<word>[A-Za-z_]\w*)
  | (?P<sign><<=|>>=|->\*|\.\.\.|::|->|\+\+|--|<<|<=|>=|(?<=\s)>>|==|!=|&&|\|\||[-+*/%&|^]=|[^\s\w])
    """,
    re.VERBOSE | re.DOTALL | re.MULTILINE,
)

BINARY = {
    "+": "-", "-": "+", "*": "/", "/": "*", "%": "/",
    "<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==",
    "&&": "||", "||": "&&", "&": "|", "|": "&", "^": "|", "<<": ">>", ">>": "<<",
    "+=": "-=", "-=": "+=", "*=": "/=", "/=": "*=", "%=": "/=",
    "&=": "|=", "|=": "&=", "^=": "|=", "<<=": ">>=", ">>=": "<<=",
}
KINDS = {
    "comparison": ("<", "<=", ">", ">=", "==", "!="),
    "logic": ("&&", "||"),
    "bits": ("&", "|", "^", "<<", ">>", "&=", "|=", "^=", "<<=", ">>="),
}
ASSIGNMENTS = {"="} | {sign for sign in BINARY if sign.endswith("=")} - set(KINDS["comparison"])
OTHER_WORD = {}
for one, other in (
    ("width", "height"), ("x", "y"), ("horizontal", "vertical"), ("left", "right"), ("top", "bottom"), ("min", "max")
):
    OTHER_WORD.update({one: other, other: one})

OPENING = {"(": ")", "[": "]", "{": "}"}
BEFORE_OPERAND = {"return", "case", "throw", "else", "do", "co_return", "and", "or", "not"}
BEGINS_DECLARATION = set(
    """alignas auto bool char class const constexpr double enum extern float friend int long mutable namespace short
    signed static static_assert struct template thread_local typedef typename union unsigned using void volatile""".split()
)
INTEGER = re.compile(r"(0[xX][\da-fA-F']+|[1-9][\d']*|0)([uUlLzZ]*)\Z")
FLOATING = re.compile(r"([\d']*\.[\d']*(?:[eE][+-]?\d+)?|\d+[eE][+-]?\d+)([fFlL]?)\Z")


def tokenise(text):
    tokens = []
    for match in LEXEME.finditer(text):
        kind = match.lastgroup if match.lastgroup != "delimiter" else "string"
        if kind in ("comment", "directive"):
            continue
        before = text[match.start() - 1 : match.start()]
        after = text[match.end() : match.end() + 1]
        tokens.append(
            Token(
                kind, match.group(), match.start(), match.end(),
                before.isspace() and after.isspace(), not before.isspace() and before != "",
            )
        )
    return tokens


class Parser:
    """Finds the sites of one source."""

    def __init__(self, text, words=()):
        """words: identifiers known outside this text, such as those of its header."""
        self.text = text
        self.tokens = tokenise(text)
        self.sites = {}
        self.words = {token.text for token in self.tokens if token.kind == "word"} | set(words)
        self.pair_brackets()
        self.leave_out()

    def find(self):
        self.scope(0, len(self.tokens))
        for index in range(len(self.tokens)):
            if not self.tokens[index].dead:
                self.single_token(index)
        return sorted(self.sites.values(), key=lambda site: (site.begin, site.end, site.kind))

    # What is what.

    def at(self, index):
        return self.tokens[index].text if 0 <= index < len(self.tokens) else ""

    def kind(self, index):
        return self.tokens[index].kind if 0 <= index < len(self.tokens) else ""

    def pair_brackets(self):
        open_ones = []
        for index, token in enumerate(self.tokens):
            if token.kind != "sign":
                continue
            if token.text in OPENING:
                open_ones.append(index)
            elif open_ones and token.text == OPENING[self.at(open_ones[-1])]:
                token.partner = open_ones.pop()
                self.tokens[token.partner].partner = index
        for index, token in enumerate(self.tokens):
            if token.text == "<" and self.opens_template(index) and self.kind(index - 1) == "word":
                self.pair_template(index)

    def opens_template(self, index):
        return self.tokens[index].glued or self.at(index - 1) == "template"

    def pair_template(self, opening):
        depth, index = 0, opening
        while index < len(self.tokens):
            text = self.at(index)
            if text == "<" and self.opens_template(index):
                depth += 1
            elif text == ">" and not self.tokens[index].spaced:
                depth -= 1
                if depth == 0:
                    self.tokens[opening].partner = index
                    self.tokens[index].partner = opening
                    return
            elif text in OPENING and self.tokens[index].partner > index:
                index = self.tokens[index].partner
            elif text in (";", ")", "]", "}"):
                return
            index += 1

    def kill(self, begin, end):
        for token in self.tokens[begin:end]:
            token.dead = True

    def leave_out(self):
        """Templates' brackets, attributes, assertions of the compiler, aliases, names of operators, pure functions."""
        for index, token in enumerate(self.tokens):
            if token.text == "<" and token.partner > index:
                self.kill(index, token.partner + 1)
            elif token.text == "[" and self.at(index + 1) == "[":
                self.kill(index, token.partner + 1)
            elif token.text in ("static_assert", "alignas"):
                self.kill(index, self.tokens[index + 1].partner + 1)
            elif token.text == "using":
                self.kill(index, self.end_of_statement(index))
            elif token.text == "operator":
                after = index + 1
                while self.kind(after) == "sign" and self.at(after) != "(":
                    after += 1
                self.kill(index, after)

    def skip(self, index):
        """Behind the token, or behind all that its bracket holds."""
        partner = self.tokens[index].partner
        return partner + 1 if partner > index else index + 1

    def end_of_statement(self, index):
        while index < len(self.tokens) and self.at(index) not in (";", "}"):
            index = self.skip(index)
        return index

    # Declarations: of namespaces, classes and functions.

    def scope(self, index, end):
        while index < end:
            index = self.declaration(index, end)

    def declaration(self, begin, end):
        index, head, has_parameters, has_value = begin, [], False, False
        if self.at(begin) in ("public", "private", "protected") and self.at(begin + 1) == ":":
            return begin + 2
        while index < end:
            text = self.at(index)
            if text == ";":
                self.expression(begin, index)
                return index + 1
            if text == "operator":
                head.append(text)
                index += 1
                while self.kind(index) == "sign" and self.at(index) != "(":
                    index += 1
                if self.at(index) == "(" and self.at(index + 1) == ")" and self.at(index + 2) == "(":
                    index += 2  # operator()
                continue
            if text == "=" and self.at(index + 1) in ("0", "default", "delete") and has_parameters:
                self.kill(index, index + 2)
            elif text == "=":
                has_value = True
            elif text == "(":
                has_parameters = True
            elif text == ":" and has_parameters and not has_value:
                index = self.initialisers(index + 1)
                text = self.at(index)
            if text == "{":
                inside, behind = index + 1, self.tokens[index].partner
                if behind < 0:
                    return end
                if "namespace" in head or head[:1] == ["extern"]:
                    self.scope(inside, behind)
                    return behind + 1
                if {"class", "struct", "union"} & set(head) and not has_parameters and not has_value:
                    self.scope(inside, behind)
                elif has_parameters and not has_value:
                    self.body(inside, behind, "bool" in head)
                    return behind + 1
            if not has_parameters:
                head.append(text)
            index = self.skip(index)
        return end

    def initialisers(self, index):
        """The members that a constructor sets: returns where its body begins."""
        while index < len(self.tokens):
            while index < len(self.tokens) and self.at(index) not in ("(", "{"):
                index = self.skip(index)
            if index >= len(self.tokens):
                break
            self.mark_code(index, self.tokens[index].partner)
            self.expression(index + 1, self.tokens[index].partner)
            index = self.skip(index)
            if self.at(index) == "...":
                index += 1
            if self.at(index) != ",":
                break
            index += 1
        return index

    # Code.

    def mark_code(self, begin, end):
        for token in self.tokens[begin:end]:
            token.code = True

    def body(self, begin, end, returns_bool):
        self.mark_code(begin, end)
        self.block(begin, end, returns_bool)

    def block(self, index, end, returns_bool):
        while index < end:
            index = self.statement(index, returns_bool)

    def statement(self, begin, returns_bool):
        text = self.at(begin)
        if text == "{":
            self.block(begin + 1, self.tokens[begin].partner, returns_bool)
            return self.skip(begin)
        if text in ("if", "while", "switch", "for"):
            return self.controlled(begin, returns_bool)
        if text in ("do", "try", "else"):
            return self.statement(begin + 1, returns_bool)
        if text == "catch":
            return self.statement(self.skip(begin + 1), returns_bool)
        if text in ("case", "default"):
            while self.at(begin) != ":":
                begin = self.skip(begin)
            return begin + 1
        end = self.end_of_statement(begin)
        if text == ";":
            return begin + 1
        if text in ("break", "continue", "return") and end == begin + 1:
            if not (text == "break" and self.ends_switch(end + 1)):
                self.add("statement", begin, end + 1, [";"])
        elif text == "return":
            self.expression(begin + 1, end)
            if returns_bool:
                self.add("result", begin + 1, end, ["true", "false"])
        else:
            self.expression(begin, end)
            if not self.is_declaration(begin) and text != "throw" and not self.means_nothing(begin):
                self.add("statement", begin, end + 1, [";"])
        return end + 1

    def ends_switch(self, closing):
        if self.at(closing) != "}":
            return False
        head = self.tokens[closing].partner - 1
        return self.at(head) == ")" and self.at(self.tokens[head].partner - 1) == "switch"

    def means_nothing(self, begin):
        """A cast to void, which only says that something is not used."""
        return [self.at(begin + i) for i in range(3)] in (["static_cast", "<", "void"], ["(", "void", ")"])

    def controlled(self, begin, returns_bool):
        """if, while, switch, for: with what they control."""
        keyword, opening = self.at(begin), begin + 1
        constant = self.at(opening) == "constexpr"
        opening += constant
        closing = self.tokens[opening].partner
        self.expression(opening + 1, closing)
        if keyword == "for":
            self.loop_head(opening, closing)
        elif keyword != "switch" and not constant:
            self.condition(opening, closing, ["true", "false"] if keyword == "if" else ["false"])
        if keyword == "while" and self.at(closing + 1) == ";" and self.at(begin - 1) == "}":
            return closing + 2  # of a do
        index = self.statement(closing + 1, returns_bool)
        if keyword == "if" and self.at(index) == "else":
            index = self.statement(index + 1, returns_bool)
        return index

    def condition(self, opening, closing, replacements):
        begin = opening + 1
        for index in range(opening + 1, closing):
            if self.at(index) == ";":
                begin = index + 1
        if not self.is_declaration(begin):
            self.add("condition", begin, closing, replacements)

    def loop_head(self, opening, closing):
        """Its step is left alone: a loop that runs the other way is always noticed, and late."""
        parts, index = [], opening + 1
        while index < closing:
            if self.at(index) == ";":
                parts.append(index)
            index = self.skip(index)
        if len(parts) == 2:
            self.kill(parts[1], closing)
            if parts[0] + 1 < parts[1]:
                self.add("condition", parts[0] + 1, parts[1], ["false"])

    def is_declaration(self, index):
        if self.at(index) in BEGINS_DECLARATION:
            return self.at(index + 1) not in ("(", "{")
        if self.kind(index) != "word" or self.at(index) in ("delete", "throw", "new", "goto"):
            return False
        index += 1
        while True:
            if self.at(index) == "::":
                index += 2
            elif self.at(index) == "<" and self.tokens[index].partner > index:
                index = self.skip(index)
            elif self.at(index) in ("*", "&", "&&") and self.tokens[index].glued or self.at(index) == "const":
                index += 1
            else:
                return self.kind(index) == "word"

    def expression(self, begin, end):
        """Finds functions written inside an expression, and choices."""
        for index in range(begin, end):
            text = self.at(index)
            if text == "{" and not self.tokens[index].dead and self.opens_lambda(index, begin):
                boolean = self.at(index - 1) == "bool" and self.at(index - 2) == "->"
                self.body(index + 1, self.tokens[index].partner, boolean)
            elif text == "?":
                self.choice(index)

    def opens_lambda(self, index, begin):
        index -= 1
        back = index
        while back > begin and self.at(back) not in ("->", ";", "{", "(", ",", "="):
            back -= 1
        if self.at(back) == "->" and self.at(back - 1) in (")", "mutable", "noexcept"):
            return True
        while self.at(index) in ("mutable", "noexcept"):
            index -= 1
        if self.at(index) == ")":
            index = self.tokens[index].partner - 1
        if self.at(index) != "]" or self.tokens[index].dead:
            return False
        before = self.tokens[index].partner - 1
        indexed = self.kind(before) == "word" and self.at(before) not in BEFORE_OPERAND or self.at(before) in (")", "]")
        return not indexed

    def choice(self, mark):
        index = mark - 1
        while index >= 0 and not self.ends_choice(index):
            partner = self.tokens[index].partner
            index = partner - 1 if 0 <= partner < index else index - 1
        if index + 1 < mark and not self.tokens[mark].dead:
            self.add("condition", index + 1, mark, ["true", "false"])

    def ends_choice(self, index):
        """On the left: what does not belong to its condition any more."""
        text = self.at(index)
        if text == "}":  # in Size{} it does
            return self.kind(self.tokens[index].partner - 1) != "word"
        return text in ("(", "[", "{", ",", ";", "?", ":") or text in ASSIGNMENTS or text in BEFORE_OPERAND

    # Sites.

    def add(self, kind, begin, end, replacements):
        """Tokens begin to end, the last one not among them."""
        if begin >= end or any(token.dead for token in self.tokens[begin : begin + 1]):
            return
        first, last = self.tokens[begin].begin, self.tokens[end - 1].end
        old = self.text[first:last]
        replacements = tuple(new for new in replacements if new != old)
        # What a condition, a result and a lone word share is one site.
        known = self.sites.get((first, last))
        if known:
            kind = known.kind
            replacements = known.replacements + tuple(new for new in replacements if new not in known.replacements)
        if replacements:
            self.sites[(first, last)] = Site(kind, first, last, replacements)

    def single_token(self, index):
        token, text = self.tokens[index], self.at(index)
        if token.kind == "number":
            self.add("constant", index, index + 1, other_numbers(text))
        elif token.kind == "word":
            if text in ("true", "false"):
                self.add("constant", index, index + 1, ["false" if text == "true" else "true"])
            elif token.code and not self.names_declared(index):
                other = "_".join(OTHER_WORD.get(part, part) for part in text.split("_"))
                if other in self.words:
                    self.add("axis", index, index + 1, [other])
        elif text in ("++", "--"):
            self.add("arithmetic", index, index + 1, ["--" if text == "++" else "++"])
        elif text in BINARY and token.spaced and not self.is_of_text(index):
            kind = next((kind for kind, signs in KINDS.items() if text in signs), "arithmetic")
            self.add(kind, index, index + 1, [BINARY[text]])
        elif text in ("!", "-", "~") and token.end == self.tokens[index + 1].begin and self.before_operand(index - 1):
            self.add("logic" if text == "!" else "arithmetic", index, index + 1, [""])

    def is_of_text(self, index):
        """Texts are only ever joined, and only ever put into a stream."""
        if self.at(index) == "+":
            return "string" in (self.kind(index - 1), self.kind(index + 1))
        if self.at(index) not in ("<<", ">>"):
            return False
        begin, end = index, index
        while begin > 0 and self.at(begin - 1) not in (";", "{", "}", "(", "["):
            begin -= 1
        while end < len(self.tokens) and self.at(end) not in (";", "{", "}", ")", "]"):
            end = self.skip(end)
        return any(token.kind == "string" or token.text == "endl" for token in self.tokens[begin:end])

    def names_declared(self, index):
        """A type stands before the word."""
        before = self.tokens[index - 1]
        if before.kind == "word":
            return before.text not in BEFORE_OPERAND
        return (before.text in ("*", "&", "&&") and before.glued and not self.before_operand(index - 2)) or (
            before.text == ">" and before.partner >= 0 and self.at(index) != "("
        )

    def before_operand(self, index):
        text = self.at(index)
        if self.kind(index) == "sign":
            return text not in (")", "]", "}")
        return text in BEFORE_OPERAND


def other_numbers(text):
    integer = INTEGER.match(text)
    if integer:
        digits, suffix = integer.groups()
        digits = digits.replace("'", "")
        value = int(digits, 0)
        others = [value - 1] if value in (0xFF, 0xFFFF, 0xFFFFFFFF) else [value + 1, value - 1] if value else [1]
        if digits[:2] in ("0x", "0X"):
            return [f"0x{other:0{len(digits) - 2}x}{suffix}" for other in others]
        return [f"{other}{suffix}" for other in others]
    floating = FLOATING.match(text)
    if floating:
        digits, suffix = floating.groups()
        return [repr(float(digits.replace("'", "")) + 1) + suffix]
    return []


def sites(text, words=()):
    return Parser(text, words).find()


class Lines:
    """The lines of a text, by place."""

    def __init__(self, text):
        self.text = text
        self.starts = [0] + [match.end() for match in re.finditer("\n", text)]

    def number(self, place):
        return bisect.bisect_right(self.starts, place)

    def around(self, begin, end):
        """Where the lines begin and end that hold this part."""
        stop = self.text.find("\n", max(begin, end - 1))
        return self.starts[self.number(begin) - 1], len(self.text) if stop < 0 else stop
