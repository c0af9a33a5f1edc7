"""Projects of Visual Studio since 2010."""
import glob
import os
import re

from . import project as model
from . import xmlfiles
from .files import Mistake, with_slashes


def read(path, data, wanted):
    root = xmlfiles.parse(data)
    if root.tag != "Project":
        raise Mistake("is no project of Visual Studio since 2010")
    result = model.Project(path)
    names = [c.get("Include", "") for c in root.iter("ProjectConfiguration")]
    result.configuration = model.choose_configuration(names, wanted)
    _Reader(result, root).run()
    return result


class _Reader:
    def __init__(self, result, root):
        self._result = result
        self._root = root

    def run(self):
        self._take_properties()
        self._take_definitions()
        self._take_items()
        for element in self._root.iter("Import"):
            name = element.get("Project", "")
            if self._applies(element) and not re.search(r"Microsoft\.Cpp|UserRootDir|\$\(VC", name):
                self._result.note("%s: what it says was not taken over" % name)

    def _applies(self, element):
        """Whether its condition holds; one that cannot be told does not."""
        condition = element.get("Condition")
        if condition is None:
            return True
        values = [self._holds(part) for part in re.split(r"\s+and\s+", condition, flags=re.I)]
        if None in values:
            if "exists(" not in condition.lower():
                self._result.note("%s: a condition that cannot be told here" % condition)
            return False
        return all(values)

    def _holds(self, part):
        name, _, platform = self._result.configuration.partition("|")
        part = re.sub(r"\$\(Configuration\)", lambda _: name, part, flags=re.I)
        part = re.sub(r"\$\(Platform\)", lambda _: platform, part, flags=re.I)
        match = re.fullmatch(r"\s*\(?\s*'([^'$]*)'\s*(==|!=)\s*'([^'$]*)'\s*\)?\s*", part)
        if not match:
            return None
        return (match[1].lower() == match[3].lower()) == (match[2] == "==")

    def _settings(self, groups, tag):
        """The elements of that name that hold, in their order."""
        for group in groups:
            if self._applies(group):
                yield from (e for e in group.iter(tag) if self._applies(e))

    def _last(self, tag, default=""):
        value = default
        for element in self._settings(self._root.findall("PropertyGroup"), tag):
            value = (element.text or "").strip()
        return value

    def _take_properties(self):
        result = self._result
        result.name = self._last("ProjectName") or self._last("RootNamespace") or result.name
        kinds = {"application": model.PROGRAM, "dynamiclibrary": model.DLL,
                 "staticlibrary": model.STATIC}
        result.kind = kinds.get(self._last("ConfigurationType", "Application").lower())
        if result.kind is None:
            raise Mistake("makes neither a program nor a library")
        result.mfc = self._last("UseOfMfc", "false").lower() not in ("", "false")
        result.characters = {"unicode": model.UNICODE, "multibyte": model.MULTIBYTE}.get(
            self._last("CharacterSet").lower(), model.PLAIN)

    def _take_definitions(self):
        result = self._result
        groups = self._root.findall("ItemDefinitionGroup")

        def words(tool, tag):
            for group in self._settings(groups, tool):
                for element in group.findall(tag):
                    if self._applies(element):
                        yield from (element.text or "").split(";")

        result.add_definitions(words("ClCompile", "PreprocessorDefinitions"), result.definitions)
        result.add_folders(words("ClCompile", "AdditionalIncludeDirectories"))
        resources = words("ResourceCompile", "PreprocessorDefinitions")
        result.add_definitions(resources, result.resource_definitions)
        result.add_libraries(words("Link", "AdditionalDependencies"))
        use = [word.strip() for word in words("ClCompile", "PrecompiledHeader")][-1:]
        header = [word.strip() for word in words("ClCompile", "PrecompiledHeaderFile")][-1:]
        if use == ["Use"]:
            result.precompiled = (header or ["stdafx.h"])[0]
        if result.kind == model.PROGRAM and "Console" in list(words("Link", "SubSystem"))[-1:]:
            result.kind = model.CONSOLE
        for event in ("PreBuildEvent", "PreLinkEvent", "PostBuildEvent"):
            if any(word.strip() for word in words(event, "Command")):
                result.note("%s: a build event was not taken over" % event)

    def _take_items(self):
        for group in self._root.findall("ItemGroup"):
            if not self._applies(group):
                continue
            for item in group:
                if item.tag in ("ClCompile", "ResourceCompile") and self._applies(item):
                    self._take_file(item)
                elif item.tag in ("CustomBuild", "Midl", "MASM"):
                    self._result.note("%s: not taken over" % item.get("Include", item.tag))

    def _take_file(self, item):
        for element in item.findall("ExcludedFromBuild"):
            if self._applies(element) and xmlfiles.is_true(element.text):
                return
        plain = False
        for element in item.findall("PrecompiledHeader"):
            if self._applies(element):
                plain = (element.text or "").strip() == "NotUsing"
        for name in item.get("Include", "").split(";"):
            name = name.strip()
            if "*" in name:
                folder = self._result.folder or "."
                pattern = os.path.join(glob.escape(folder), with_slashes(name))
                for path in sorted(glob.glob(pattern, recursive=True)):
                    self._result.add_file(os.path.relpath(path, folder), plain)
            elif name:
                self._result.add_file(name, plain)
