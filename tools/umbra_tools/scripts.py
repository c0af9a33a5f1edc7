"""Resource scripts of Visual Studio, made readable for windres.

The script and what it includes from its own folder become one text in UTF-8: with the paths that
files have on this disk, with commas where windres wants them, without the comments.
"""
import os
import re

from . import texts
from .files import MAX_SIZE, Mistake, find_file, is_absolute, printable, read_file, with_slashes

MAX_DEPTH = 60
MAX_INCLUDES = 2000

# A string may end with its line, as in the C text of headers.
_STRING = r'L?"(?:[^"\\\n]|\\.|"")*(?:"|(?=\n|\Z))'
_COMMENT = re.compile(r"(?P<string>%s)|//[^\n]*|/\*.*?(?:\*/|\Z)" % _STRING, re.S)
_COMMENT_OF_SCRIPTS = re.compile(r"%s|(?P<semicolon>;[^\n]*)" % _COMMENT.pattern, re.S)
_TOKEN = re.compile(
    r"""(?P<newline>\n)
      | (?P<space>[^\S\n]+)
      | (?P<string>%s)
      | (?P<word>[\w.:\\/$@?*#!%%'\u00a0-\U0010ffff][\w.:\\/$@?*#!%%'\u00a0-\U0010ffff-]*)
      | (?P<other>.)""" % _STRING,
    re.X | re.S,
)
_DIRECTIVE = re.compile(r"[ \t]*#[ \t]*(\w*)(?:[^\n\\]|\\.)*\n?", re.S)
_INCLUDE = re.compile(r'"([^"\n]*)"|<([^>\n]*)>')
_HIGH_ESCAPES = re.compile(r'\\(?!\\)(?:[0-7]{1,3}|[xX][0-9a-fA-F]{1,2})')

_MEMORY_FLAGS = {
    "DISCARDABLE", "FIXED", "IMPURE", "LOADONCALL", "MOVEABLE", "NONSHARED", "PRELOAD", "PURE",
    "SHARED",
}
# Blocks with a grammar of their own; all others hold raw data.
_GRAMMARS = {
    "ACCELERATORS", "DESIGNINFO", "DIALOG", "DIALOGEX", "MENU", "MENUEX", "STRINGTABLE", "TOOLBAR",
    "VERSIONINFO",
}
# What stands outside of blocks and is no name or type of a resource.
_HEADINGS = _GRAMMARS | {
    "CAPTION", "CHARACTERISTICS", "CLASS", "EXSTYLE", "FILEFLAGS", "FILEFLAGSMASK", "FILEOS",
    "FILESUBTYPE", "FILETYPE", "FILEVERSION", "LANGUAGE", "PRODUCTVERSION", "STYLE", "VERSION",
}


def quoted(path):
    """A path in quotes, for the preprocessor and for windres."""
    path = path.replace(os.sep, "/")
    if re.search(r'["\\\x00-\x1f]', path):
        raise Mistake("%s: windres cannot read a path with such characters" % path)
    return '"%s"' % path


def without_comments(text, is_script):
    """The text with a blank for each comment, in as many lines. In scripts `;` begins one, too."""

    def replaced(match):
        if match.lastgroup == "string":
            return match[0]
        if match.lastgroup == "semicolon":
            begin = text.rfind("\n", 0, match.start()) + 1
            if text[begin : match.start()].lstrip().startswith("#"):
                return match[0]
        return "\n" * match[0].count("\n") or " "

    return (_COMMENT_OF_SCRIPTS if is_script else _COMMENT).sub(replaced, text)


class Conditions:
    """Which lines only the resource editor sees, or nobody."""

    _DEFINED = r"defined\s*\(?\s*APSTUDIO_INVOKED\s*\)?\s*$"
    _DEAD = re.compile(r"ifdef\s+APSTUDIO_INVOKED\b|if\s+0\s*$|if\s+" + _DEFINED)
    _LIVE = re.compile(r"ifndef\s+APSTUDIO_INVOKED\b|if\s+1\s*$|if\s+!\s*" + _DEFINED)

    def __init__(self):
        self._stack = []  # True: dead; False: live, and its #else is dead; None: not known.

    def follow(self, name, directive):
        if name in ("if", "ifdef", "ifndef"):
            text = directive[directive.index("#") + 1 :].strip()
            dead, live = self._DEAD.match(text), self._LIVE.match(text)
            self._stack.append(True if dead else False if live else None)
        elif name == "else" and self._stack:
            top = self._stack[-1]
            self._stack[-1] = None if top is None else not top
        elif name == "elif" and self._stack:
            self._stack[-1] = None
        elif name == "endif" and self._stack:
            self._stack.pop()

    def dead(self):
        return True in self._stack


class Statement:
    """Where in a statement the reading is: what came before it in it, and in which block."""

    def __init__(self):
        self.words = []  # Since the last resource was complete.
        self.depth = 0
        self.raw = False
        self.operand = False  # Whether a comma has to come before another value.
        self.comma = False

    def open(self):
        self.depth += 1
        if self.depth == 1:
            kinds = {word.upper() for word in self.words}
            self.raw = not kinds & _GRAMMARS
            self.operand = self.comma = False

    def close(self):
        self.depth = max(0, self.depth - 1)
        if self.depth == 0:
            self.words = []
            self.raw = False

    def wants_file(self):
        """Whether a string that comes now names the resource's file."""
        words = [word.upper() for word in self.words]
        while words and words[-1] in _MEMORY_FLAGS:
            words.pop()
        if self.depth > 0 or len(words) < 2 or "," in words[-2:]:
            return False
        return words[-1] not in _HEADINGS and words[-2] not in _HEADINGS | {"FONT"}


class Preparation:
    """One run over a script."""

    def __init__(self, folders, code_page=None, warn=lambda text: None):
        self.folders = folders  # Where includes are looked for after the script's own folder.
        self.code_page = code_page
        self.warn = warn
        self.files = []  # All that were read or named.
        self.resources = 0
        self.state = Statement()
        self._out = []
        self._includes = 0
        self._size = 0
        self._stack = []
        self._once = {}
        self._main_folder = ""

    def run(self, script):
        self._main_folder = os.path.dirname(script)
        self.put("#pragma code_page(65001)\n")
        self._add_file(script, read_file(script), self.code_page, self.code_page is not None)
        if self.resources == 0:
            # windres makes no object of a script without a resource.
            self.put("\nUMBRA_EMPTY RCDATA\nBEGIN\nEND\n")
        return "".join(self._out)

    def put(self, text):
        self._out.append(text)

    def put_place(self, line, path):
        self.put("#line %d %s\n" % (line, quoted(path)))

    def _add_file(self, path, data, page, sure):
        if len(self._stack) >= MAX_DEPTH:
            raise Mistake("%s: includes are nested too deeply" % path)
        self._includes += 1
        self._size += len(data)
        if self._includes > MAX_INCLUDES or self._size > 2 * MAX_SIZE:
            raise Mistake("%s: includes too much" % self._stack[0])
        self._note(path)
        text = texts.read_text(data, path, page, sure)
        self._stack.append(path)
        self.put_place(1, path)
        FileReader(self, path, text).run()
        self._stack.pop()

    def _note(self, path):
        if path not in self.files:
            self.files.append(path)

    def guard_once(self, path, line):
        """What `#pragma once` becomes: the file is a part of another one now."""
        number = self._once.setdefault(path, len(self._once))
        guard = "UMBRA_RC_ONCE_%d" % number
        place = "#line %d %s\n" % (line + 1, quoted(path))
        return "#ifndef %s\n#define %s\n%s" % (guard, guard, place)

    def find(self, name, includer, quotes):
        """(path, whether it is the script's own) of an included or named file; (None, False)."""
        own = [os.path.dirname(includer), self._main_folder]
        others = [(folder, False) for folder in self.folders]
        own = [(folder, True) for folder in own]
        for folder, mine in own + others if quotes else others + own:
            path = find_file(name, folder)
            if path is not None:
                return path, mine
        return None, False

    def include(self, name, quotes, includer, line, page, sure):
        """Puts the file in place of its include line, or an include line that works."""
        path, mine = self.find(name, includer, quotes)
        if path is None:
            name = with_slashes(name)
            # The headers of the system have lower-case names.
            name = name if is_absolute(name) else name.lower()
            self.put("#include %s\n" % ('"%s"' % name if quotes else "<%s>" % name))
            return
        data = read_file(path)
        plain = texts.encoding_of(data)[0] is None
        is_header = path.lower().endswith((".h", ".hh", ".hpp"))
        if path in self._stack and path in self._once:
            self.put("\n")
            return
        if path in self._stack or plain and is_header and not mine:
            self._note(path)
            self.put("#include %s\n" % quoted(os.path.abspath(path)))
            return
        self._add_file(path, data, page, sure)
        self.put("\n")
        self.put_place(line + 1, includer)

    def file_name(self, name, includer, line):
        """The string that names a resource's file for windres."""
        path, _ = self.find(name, includer, True)
        if path is None:
            self.warn("%s:%d: there is no %s" % (includer, line, printable(name)))
            return quoted(with_slashes(name))
        self._note(path)
        return quoted(os.path.abspath(path))


class FileReader:
    """Goes through one file, token by token."""

    def __init__(self, preparation, path, text):
        self._to = preparation
        self._path = path
        self._is_header = path.lower().endswith((".h", ".c", ".hh", ".hpp"))
        self._text = without_comments("\n".join(text.lines) + "\n", not self._is_header)
        self._pages = text.pages
        self._sure = text.sure
        self._line = 1
        self._state = Statement() if self._is_header else preparation.state
        self._conditions = Conditions()
        self._ends = []

    def run(self):
        at = 0
        fresh = True  # Nothing but blanks in the line yet.
        while at < len(self._text):
            match = _DIRECTIVE.match(self._text, at) if fresh else None
            if match:
                self._directive(match[1].lower(), match[0])
            else:
                match = _TOKEN.match(self._text, at)
                fresh = match.lastgroup == "newline" or fresh and match.lastgroup == "space"
                self._token(match.lastgroup, match[0])
            self._line += match[0].count("\n")
            at = match.end()
        self._to.put("".join(self._ends))

    @property
    def _page(self):
        return self._pages[min(self._line, len(self._pages)) - 1]

    def _directive(self, name, text):
        dead = self._conditions.dead()
        self._conditions.follow(name, text)
        included = _INCLUDE.search(text) if name == "include" and not dead else None
        if included:
            quotes = included[1] is not None
            wanted = included[1] if quotes else included[2]
            self._to.include(wanted, quotes, self._path, self._line, self._page, self._sure)
            return
        if name == "pragma" and re.search(r"pragma\s+code_page", text, re.I):
            text = "\n" * text.count("\n")
        elif name == "pragma" and re.search(r"pragma\s+once\b", text):
            text = self._to.guard_once(self._path, self._line)
            self._ends.append("\n#endif\n")
        self._to.put(text)

    def _token(self, kind, text):
        if kind == "newline":
            self._to.put("\n")
        elif self._is_header:
            pass  # As the resource compiler does: of headers it takes the directives only.
        elif kind == "space":
            self._to.put(" " * len(text))
        else:
            self._significant(kind, text)

    def _significant(self, kind, text):
        state = self._state
        word = text.upper() if kind == "word" else text
        if word in ("BEGIN", "{"):
            state.open()
        elif word in ("END", "}"):
            if state.depth == 1 and not self._conditions.dead():
                self._to.resources += 1
            state.close()
        elif state.depth == 0:
            text = self._outside(kind, text)
        else:
            text = self._inside(kind, text)
        self._to.put(text)

    def _outside(self, kind, text):
        state = self._state
        is_name = kind == "word" and re.search(r"[./\\]", text) and not re.match(r"[\d.]+$", text)
        if (kind == "string" or is_name) and state.wants_file() and not text.startswith("L"):
            name = text.strip('"').replace('""', '"') if kind == "string" else text
            state.words = []
            if self._conditions.dead():
                return quoted(with_slashes(name))
            self._to.resources += 1
            return self._to.file_name(name, self._path, self._line)
        state.words.append(text)
        del state.words[:-40]  # No heading is longer.
        return self._string(text) if kind == "string" else text

    def _inside(self, kind, text):
        state = self._state
        if not state.raw:
            return self._string(text) if kind == "string" else text
        if text == ",":
            dropped = state.comma
            state.comma, state.operand = True, False
            return "" if dropped else text
        state.comma = False
        if kind == "other":
            state.operand = text == ")"
            return text
        comma = ", " if state.operand else ""
        state.operand = True
        return comma + (self._data(text) if kind == "string" else text)

    def _string(self, text):
        """A string whose characters were written as bytes of the code page."""
        if text.startswith("L") or "\\" not in text:
            return text
        codec = texts.codec_of(self._page)

        def decoded(match):
            codes = _HIGH_ESCAPES.findall(match[0])
            values = [int(code[2:], 16) if code[1] in "xX" else int(code[1:], 8) for code in codes]
            if not any(value >= 0x80 for value in values) or max(values) > 0xFF:
                return match[0]
            try:
                characters = bytes(values).decode(codec, "umbra-keep")
            except UnicodeDecodeError:
                return match[0]
            return "".join(c if c >= "\x80" else code for c, code in _pairs(characters, codes))

        pieces = re.split(r"(\\\\|\\\")", text)  # What only looks like the begin of an escape.
        for i in range(0, len(pieces), 2):
            pieces[i] = re.sub("(?:%s)+" % _HIGH_ESCAPES.pattern, decoded, pieces[i])
        return "".join(pieces)

    def _data(self, text):
        """A string of raw data: the bytes that it has in its code page."""
        if text.startswith("L") or text.isascii():
            return text
        data = text.encode(texts.codec_of(self._page), "umbra-keep")
        return "".join(chr(byte) if byte < 0x80 else "\\%03o" % byte for byte in data)


def _pairs(characters, codes):
    """Each character with the escape that it came from; only those of the ASCII ones count."""
    if len(characters) == len(codes):
        return zip(characters, codes)
    return ((c, c if c.isprintable() else "\\%03o" % ord(c)) for c in characters)
