"""Projects of Visual C++ 5 and 6."""
import re

from . import project as model
from . import texts
from .files import Mistake

_OPTION = re.compile(r'/(D|I)\s*(?:"((?:[^"\\]|\\.)*)"|(\S+))')
_NO_HEADER = re.compile(r"/Yu|/YX")


def read(path, data, wanted):
    if not data.startswith(b"# Microsoft Developer Studio Project File"):
        raise Mistake("is no project of Visual C++ 6")
    lines = texts.read_text(data, path).lines
    result = model.Project(path)
    name = re.search(r'Name="([^"]+)"', lines[0])
    if name:
        result.name = name[1]
    names = {}
    for line in lines:
        match = re.match(r'!(?:ELSE)?IF\s+"\$\(CFG\)"\s*==\s*"(.* - (\S+) (.+))"', line)
        if match:
            names.setdefault("%s|%s" % (match[3], match[2]), match[1])
    if not names:  # With one configuration there are no conditions.
        only = re.search(r"^CFG=(.* - (\S+) (.+))$", "\n".join(lines), re.M)
        if only:
            names["%s|%s" % (only[3], only[2])] = only[1]
    result.configuration = model.choose_configuration(list(names), wanted)
    _Reader(result, names[result.configuration]).run(lines)
    return result


class _Reader:
    def __init__(self, project, configuration):
        self._project = project
        self._configuration = configuration
        self._active = True
        self._file = None
        self._in_custom = False

    def run(self, lines):
        for line in lines:
            line = line.strip()
            if line.startswith("!"):
                self._condition(line)
            elif line in ("# Begin Custom Build", "# End Custom Build"):
                self._in_custom = line == "# Begin Custom Build"
                if self._in_custom and self._active:
                    self._project.note("a custom build step was not taken over")
            elif self._active and not self._in_custom:
                self._line(line)

    def _condition(self, line):
        match = re.match(r'!(?:ELSE)?IF\s+"\$\(CFG\)"\s*==\s*"(.*)"', line)
        if match:
            self._active = match[1] == self._configuration
        elif line.startswith(("!ELSE", "!ENDIF")):
            self._active = line.startswith("!ENDIF")

    def _line(self, line):
        if line == "# Begin Source File":
            self._file = {"name": None, "excluded": False, "plain": False}
        elif line == "# End Source File" and self._file is not None:
            file, self._file = self._file, None
            if file["name"] and not file["excluded"]:
                self._project.add_file(file["name"], file["plain"])
        elif self._file is not None:
            self._file_line(line)
        else:
            self._project_line(line)

    def _file_line(self, line):
        if line.startswith("SOURCE="):
            self._file["name"] = line[7:].strip().strip('"')
        elif re.match(r"# PROP Exclude_From_Build 1", line):
            self._file["excluded"] = True
        elif line.startswith("# SUBTRACT CPP") and _NO_HEADER.search(line):
            self._file["plain"] = True

    def _project_line(self, line):
        project = self._project
        kind = re.match(r'# TARGTYPE ".*" 0x(\w+)', line)
        if kind:
            kinds = {"1": model.PROGRAM, "2": model.DLL, "3": model.CONSOLE, "4": model.STATIC}
            project.kind = kinds.get(kind[1][-1])
            if project.kind is None:
                raise Mistake("makes neither a program nor a library")
        elif re.match(r"# PROP Use_MFC [1-9]", line):
            project.mfc = True
        elif line.startswith("# ADD CPP "):
            self._compiler(line)
        elif line.startswith("# ADD RSC "):
            found = re.findall(r'/d\s*(?:"([^"]*)"|(\S+))', line)
            project.add_definitions([a or b for a, b in found], project.resource_definitions)
        elif line.startswith("# ADD LINK32 "):
            project.add_libraries(re.findall(r'"[^"]+\.lib"|[^\s"]+\.lib\b', line, re.I))

    def _compiler(self, line):
        project = self._project
        options = [(kind, a or b) for kind, a, b in _OPTION.findall(line)]
        words = [value for kind, value in options if kind == "D"]
        project.add_definitions(words, project.definitions)
        project.add_folders([value for kind, value in options if kind == "I"])
        if "_UNICODE" in project.definitions:
            project.characters = model.UNICODE
        elif "_MBCS" in project.definitions:
            project.characters = model.MULTIBYTE
        header = re.search(r'/Yu"([^"]+)"', line)
        if header:
            project.precompiled = header[1]
