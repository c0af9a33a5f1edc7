"""What a project file says, whatever its format."""
import os
import re

from .files import Mistake, find_file, printable, with_slashes

COMPILED = {".cpp", ".cxx", ".cc", ".c"}
HEADERS = {".h", ".hpp", ".hxx", ".inl", ".rc2", ".rh", ".txt", ".ico", ".bmp", ".cur", ".manifest"}

PROGRAM, CONSOLE, DLL, STATIC = "program", "console program", "DLL", "static library"
UNICODE, MULTIBYTE, PLAIN = "Unicode", "MultiByte", "NotSet"


class Source:
    """A file that is compiled, and whether it goes without the precompiled header."""

    def __init__(self, path, plain=False):
        self.path = path
        self.plain = plain


class Project:
    def __init__(self, path):
        self.path = path
        self.folder = os.path.dirname(path)
        self.name = os.path.splitext(os.path.basename(path))[0]
        self.configuration = ""
        self.kind = PROGRAM
        self.mfc = False
        self.characters = PLAIN
        self.sources = []
        self.resources = []
        self.definitions = []
        self.resource_definitions = []
        self.folders = []  # Where headers are looked for, relative; @BUILD is the build folder.
        self.libraries = []
        self.precompiled = None  # The header's name.
        self.notes = []  # What could not be taken over.

    def note(self, text):
        text = printable(text)
        if text not in self.notes:
            self.notes.append(text)

    def expand(self, text):
        """The text with the values of its variables; None, with a note, when one is not known."""
        name, _, platform = self.configuration.partition("|")
        known = {
            "configuration": name, "configurationname": name, "platform": platform,
            "platformname": platform, "projectname": self.name, "targetname": self.name,
            "inputname": self.name, "projectdir": "./", "inputdir": "./",
            "msbuildprojectdirectory": ".", "msbuildthisfiledirectory": "./",
            "outdir": "@BUILD/", "intdir": "@BUILD/",
        }
        missing = [v for v in re.findall(r"\$\((\w+)\)", text) if v.lower() not in known]
        if missing or "$(" in re.sub(r"\$\(\w+\)", "", text):
            self.note("%s: not taken over, its variables are not known here" % text)
            return None
        return re.sub(r"\$\((\w+)\)", lambda match: known[match[1].lower()], text)

    def add_file(self, name, plain=False):
        """Adds a file of the project by what its ending says."""
        name = self.expand(name)
        if name is None:
            return
        ending = os.path.splitext(name)[1].lower()
        if ending in HEADERS:
            return
        if ending not in COMPILED | {".rc", ".def"}:
            self.note("%s: nothing is done with files of this kind" % name)
            return
        path = find_file(name, self.folder)
        if path is None:
            self.note("%s: there is no such file" % name)
            return
        path = os.path.relpath(path, self.folder or ".").replace(os.sep, "/")
        if ending == ".rc":
            if path not in self.resources:
                self.resources.append(path)
        elif path not in [source.path for source in self.sources]:
            self.sources.append(Source(path, plain))

    def add_definitions(self, words, target):
        for word in words:
            word = word.strip()
            if not word or word.startswith("%("):
                continue
            # As on a command line, a quote that is meant has a \\ before it.
            word = self.expand(word.replace('\\"', '"'))
            if word is not None and not re.match(r"[A-Za-z_]\w*(=|$)", word):
                self.note("%s: is no definition" % word)
            elif word is not None and word not in target:
                target.append(word)

    def add_folders(self, words):
        for word in words:
            word = word.strip().strip('"')
            if not word or word.startswith("%("):
                continue
            word = self.expand(word)
            if word is None:
                continue
            folder = with_slashes(word).rstrip("/") or "."
            if re.match(r"[A-Za-z]:|//", folder):
                self.note("%s: a folder of another machine" % word)
            elif folder not in self.folders:
                self.folders.append(os.path.normpath(folder).replace(os.sep, "/"))

    def add_libraries(self, words):
        for word in words:
            word = word.strip().strip('"')
            if not word or word.startswith("%("):
                continue
            word = self.expand(word)
            if word is None:
                continue
            name = re.sub(r"\.lib$", "", word, flags=re.I).lower()
            if not re.match(r"[\w.+-]+$", name):
                self.note("%s: a library that GCC may not read" % word)
            elif re.match(r"(mfc|u?n?afxcw|msvc|libc|oldnames|delayimp)", name):
                self.note("%s: a library of the other compiler" % word)
            elif name not in self.libraries:
                self.libraries.append(name)


def choose_configuration(names, wanted):
    """The configuration of that name (NAME or NAME|PLATFORM); without one, what is shipped."""
    if not names:
        raise Mistake("has no configuration")
    if wanted is None:
        for fits in (r"release\|win32$", r"release\|", r".*release"):
            for name in names:
                if re.match(fits, name, re.I):
                    return name
        return names[0]
    for name in names:
        if wanted.lower() in (name.lower(), name.partition("|")[0].lower()):
            return name
    known = ", ".join(names)
    raise Mistake("has no configuration %s; it has %s" % (printable(wanted), printable(known)))
