"""XML as project files have it."""
import codecs
import io
import re
import xml.etree.ElementTree as tree

from . import texts
from .files import Mistake

MAX_DEPTH = 100


def parse(data):
    """The root element; tags are without namespaces."""
    codec, mark = texts.encoding_of(data)
    if codec is None:
        declared = re.match(rb"<\?xml[^>]*encoding=[\"']([\w.-]+)", data)
        codec = declared[1].decode("ascii") if declared else "utf-8"
    try:
        text = data[mark:].decode(codecs.lookup(codec).name)
    except (LookupError, UnicodeDecodeError):
        raise Mistake("is no valid text in %s" % codec) from None
    # Neither does any project file have them, nor is it known what they would pull in.
    if "<!DOCTYPE" in text:
        raise Mistake("has a document type, which no project file has")
    text = re.sub(r"\A\s*<\?xml[^>]*\?>", "", text)
    depth = 0
    root = None
    try:
        for event, element in tree.iterparse(io.BytesIO(text.encode()), ("start", "end")):
            if root is None:
                root = element
            depth += 1 if event == "start" else -1
            if depth > MAX_DEPTH:
                raise Mistake("is nested too deeply")
            if event == "end" and isinstance(element.tag, str):
                element.tag = element.tag.rpartition("}")[2]
    except (tree.ParseError, ValueError, UnicodeEncodeError) as problem:
        raise Mistake("is no valid XML: %s" % problem) from None
    return root


def is_true(text):
    return (text or "").strip().lower() in ("true", "1")
