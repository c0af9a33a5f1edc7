"""Texts of Visual Studio: UTF-16, UTF-8, or the code page of whoever wrote them."""
import codecs
import re

from .files import Mistake

WESTERN = 1252
UTF8 = 65001

# Where a script names no code page, its language does: primary languages by number and name.
_PAGES_OF_LANGUAGES = {
    0x01: 1256, "ARABIC": 1256, 0x04: 936, "CHINESE": 936, 0x05: 1250, "CZECH": 1250,
    0x08: 1253, "GREEK": 1253, 0x0D: 1255, "HEBREW": 1255, 0x0E: 1250, "HUNGARIAN": 1250,
    0x11: 932, "JAPANESE": 932, 0x12: 949, "KOREAN": 949, 0x15: 1250, "POLISH": 1250,
    0x18: 1250, "ROMANIAN": 1250, 0x19: 1251, "RUSSIAN": 1251, 0x1B: 1250, "SLOVAK": 1250,
    0x1E: 874, "THAI": 874, 0x1F: 1254, "TURKISH": 1254, 0x22: 1251, "UKRAINIAN": 1251,
    0x24: 1250, "SLOVENIAN": 1250, 0x25: 1257, "ESTONIAN": 1257, 0x26: 1257, "LATVIAN": 1257,
    0x27: 1257, "LITHUANIAN": 1257, 0x2A: 1258, "VIETNAMESE": 1258,
}
_TRADITIONAL = re.compile(rb"TRADITIONAL|HONGKONG|MACAU|,\s*(0x0*)?[135]\b", re.I)
_PRAGMA = re.compile(rb"(?im)^[ \t]*#[ \t]*pragma[ \t]+code_page[ \t]*\([ \t]*(\w+)[ \t]*\)")
_LANGUAGE = re.compile(rb"[ \t]*LANGUAGE\s+(?:LANG_(\w+)|(0x[0-9a-f]+|\d+))\s*,\s*\w+", re.I)


def _keep_byte(error):
    """Bytes that a code page leaves undefined mean themselves, as on Windows."""
    if isinstance(error, UnicodeEncodeError):
        bad = error.object[error.start : error.end]
        return (bytes(ord(c) if ord(c) < 0x100 else ord("?") for c in bad), error.end)
    bad = error.object[error.start : error.end]
    return ("\u20ac" if bad == b"\x80" else "".join(map(chr, bad)), error.end)


codecs.register_error("umbra-keep", _keep_byte)


def codec_of(page):
    """Python's name of a code page; None when there is none."""
    if page == UTF8:
        return "utf-8"
    if page in (936, 54936):
        return "gbk" if page == 936 else "gb18030"
    name = "iso8859_%d" % (page - 28590) if 28591 <= page <= 28605 else "cp%d" % page
    try:
        return codecs.lookup(name).name
    except LookupError:
        return None


def unmarked_utf16(data):
    """The byte order of UTF-16 text without a mark: mostly ASCII, so every second byte is 0."""
    sample = data[:4096]
    if len(sample) < 4 or len(data) % 2 == 1:
        return None
    pairs = len(sample) // 2
    zeros_first = sample[0::2].count(0)
    zeros_second = sample[1::2].count(0)
    if zeros_second > 0.4 * pairs and zeros_first < 0.05 * pairs:
        return "utf-16-le"
    if zeros_first > 0.4 * pairs and zeros_second < 0.05 * pairs:
        return "utf-16-be"
    return None


def encoding_of(data):
    """(codec, length of the mark) of a text that tells it; (None, 0) of others."""
    if data.startswith(codecs.BOM_UTF8):
        return "utf-8", 3
    if data.startswith(codecs.BOM_UTF16_LE):
        return "utf-16-le", 2
    if data.startswith(codecs.BOM_UTF16_BE):
        return "utf-16-be", 2
    return unmarked_utf16(data), 0


def is_utf8(data):
    try:
        data.decode("utf-8")
    except UnicodeDecodeError:
        return False
    return True


class Text:
    """The lines of a text, and the code page that its author had in mind at each."""

    def __init__(self, lines, pages, sure):
        self.lines = lines
        self.pages = pages
        self.sure = sure  # Whether the pages were named.


def _page_named(name, default, place):
    if name.lower() == "default":
        return default
    page = int(name) if name.isdigit() else 0
    if codec_of(page) is None:
        raise Mistake("%s: code page %s is not known" % (place, name))
    return page


def _page_of_language(line):
    match = _LANGUAGE.match(line)
    if not match:
        return None
    key = match[1].decode("ascii").upper() if match[1] else int(match[2], 0) & 0x3FF
    page = _PAGES_OF_LANGUAGES.get(key, WESTERN)
    return 950 if page == 936 and _TRADITIONAL.search(line) else page


def read_text(data, name, page=None, sure=False):
    """The text of a script or header. `page` is the code page until another one is named; unless it
    is sure, UTF-8 goes before it, and so does what the language of the script tells."""
    codec, mark = encoding_of(data)
    if codec is not None:
        try:
            data = data[mark:].decode(codec).encode("utf-8")
        except UnicodeDecodeError:
            raise Mistake("%s: is no valid %s" % (name, codec.upper())) from None
        codec = "utf-8"
    if b"\0" in data:
        raise Mistake("%s: is not text" % name)
    data = data.replace(b"\r\n", b"\n").replace(b"\r", b"\n").rstrip(b"\x1a")
    sure = sure or _PRAGMA.search(data) is not None
    if codec is None and not sure and not data.isascii() and is_utf8(data):
        codec = "utf-8"
    page = start = page or WESTERN

    lines, pages = [], []
    for line in data.split(b"\n"):
        if _PRAGMA.match(line):
            place = "%s:%d" % (name, len(lines) + 1)
            page = _page_named(_PRAGMA.match(line)[1].decode("ascii"), start, place)
        elif not sure:
            page = _page_of_language(line) or page
        lines.append(line.decode(codec or codec_of(page), "strict" if codec else "umbra-keep"))
        pages.append(page)
    return Text(lines, pages, sure)
