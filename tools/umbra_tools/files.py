"""Files as Windows programs name them: any case, both slashes."""
import os
import re
import stat
import tempfile

MAX_SIZE = 32 << 20  # No project or script that people write is anywhere near.


class Mistake(Exception):
    """What is wrong with the input, in one line for the user."""


def printable(text):
    """The text in one line, without what would change a terminal."""
    return re.sub(r"[^\x20-\x7e\u00a0-\ud7ff\ue000-\uffff]", "?", str(text))


def read_file(path):
    """The bytes of a plain file of a sensible size."""
    try:
        mode = os.stat(path)
        if not stat.S_ISREG(mode.st_mode):
            raise Mistake("%s: is not a file" % path)
        if mode.st_size > MAX_SIZE:
            raise Mistake("%s: is too large" % path)
        with open(path, "rb") as file:
            return file.read(MAX_SIZE)
    except (OSError, ValueError) as problem:
        reason = problem.strerror if isinstance(problem, OSError) else "no valid name"
        raise Mistake("%s: cannot be read: %s" % (path, reason)) from None


def write_file(path, content):
    """Writes beside the file first, so that it is there as a whole or not at all."""
    folder = os.path.dirname(os.path.abspath(path))
    beside = None
    try:
        number, beside = tempfile.mkstemp(prefix=".umbra-", dir=folder)
        with os.fdopen(number, "wb") as file:
            file.write(content)
        mask = os.umask(0)
        os.umask(mask)
        os.chmod(beside, 0o666 & ~mask)
        os.replace(beside, path)
    except OSError as problem:
        if beside is not None and os.path.exists(beside):
            os.unlink(beside)
        raise Mistake("%s: cannot be written: %s" % (path, problem.strerror)) from None


def with_slashes(name):
    """A name with / for every \\, also for doubled ones."""
    return re.sub(r"(?<=.)/{2,}", "/", name.strip().replace("\\", "/"))


def is_absolute(name):
    return re.match(r"[A-Za-z]:|[/\\]", name) is not None


def library_folders(here):
    """The class library's headers and scripts: installed, or beside the tools in the sources."""
    for folder in ("../include/umbra/mfc", "../mfc/include"):
        folder = os.path.normpath(os.path.join(here, folder))
        if os.path.isfile(os.path.join(folder, "afxres.h")):
            return [folder]
    return []


_listings = {}


def _names_in(folder):
    if folder not in _listings:
        try:
            _listings[folder] = sorted(os.listdir(folder or "."))
        except OSError:
            _listings[folder] = []
    return _listings[folder]


def find_file(name, folder):
    """The path of a file as it is spelled on the disk, or None; its name may be of any case."""
    if is_absolute(name) or "\0" in name:
        return None
    path = folder
    for part in with_slashes(name).split("/"):
        if part in ("", "."):
            continue
        if part != "..":
            names = _names_in(path)
            if part not in names:
                alike = [other for other in names if other.lower() == part.lower()]
                if not alike:
                    return None
                part = alike[0]
        path = os.path.join(path, part)
    path = os.path.normpath(path)
    return path if os.path.isfile(path) else None
