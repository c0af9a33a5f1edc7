"""What sources ask for by other names than files have here, and the libraries that they name."""
import os
import re

from . import scripts, texts
from .files import Mistake, find_file, is_absolute, read_file, with_slashes

_INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(?:"([^"\n]+)"|<([^>\n]+)>)', re.M)
_LIBRARY = re.compile(
    r'^[ \t]*#[ \t]*pragma[ \t]+comment[ \t]*\([ \t]*lib[ \t]*,[ \t]*"([^"\n]+)"', re.M)
# The only folders of the compiler's headers with large letters.
_LARGE = {"gl": "GL", "khr": "KHR"}
MAX_FILES = 20000


class Scan:
    """Reads the sources of a project and all headers of its own that they reach."""

    def __init__(self, project, library_folders):
        self.forwards = {}  # Name in an #include line: file relative to the project, or <header>.
        self._project = project
        self._root = project.folder or "."
        own = [os.path.join(self._root, f) for f in project.folders if "@" not in f]
        self._folders = [(folder, True) for folder in own]
        self._folders += [(folder, False) for folder in library_folders]
        self._seen = set()

    def run(self):
        waiting = [os.path.join(self._root, s.path) for s in self._project.sources]
        if self._project.precompiled:
            header = find_file(self._project.precompiled, self._root)
            waiting += [header] if header else []
        while waiting:
            path = os.path.normpath(waiting.pop())
            if path in self._seen:
                continue
            self._seen.add(path)
            if len(self._seen) > MAX_FILES:
                raise Mistake("%s: includes too many files" % self._project.path)
            waiting += self._read(path)

    def _read(self, path):
        data = read_file(path)
        codec, _ = texts.encoding_of(data)
        shown = os.path.relpath(path, self._root)
        if codec is not None and codec != "utf-8":
            self._project.note("%s: is UTF-16, which GCC does not read; save it as UTF-8" % shown)
            text = data.decode(codec, "replace")
        else:
            text = data.decode("latin-1")
        text = scripts.without_comments(text.replace("\r\n", "\n"), False)
        self._project.add_libraries(_LIBRARY.findall(text))
        reached = []
        for quoted, angled in _INCLUDE.findall(text):
            found = self._look(quoted or angled, path, bool(quoted))
            reached += [found] if found else []
        return reached

    def _look(self, name, includer, quotes):
        """The project's own file of that name, if any. Forwards to files with another name."""
        if is_absolute(name):
            return None
        beside = [(os.path.dirname(includer), True)] if quotes else []
        places = beside + self._folders
        for folder, own in places:
            if "\\" not in name and os.path.isfile(os.path.join(folder, name)):
                return os.path.join(folder, name) if own else None
        for folder, own in places:
            path = find_file(name, folder)
            if path is not None:
                file = os.path.relpath(path, self._root if own else folder).replace(os.sep, "/")
                self._forward(name, file if own else "<%s>" % file)
                return path if own else None
        system = with_slashes(name).lower()
        first, slash, rest = system.partition("/")
        system = _LARGE.get(first, first) + slash + rest
        if system != name and ".." not in system:
            self._forward(name, "<%s>" % system)
        return None

    def _forward(self, name, file):
        known = self.forwards.setdefault(name, file)
        if known != file:
            self._project.note("%s: is %s and %s; only the first is found" % (name, known, file))
