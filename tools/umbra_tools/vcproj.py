"""Projects of Visual Studio .NET to 2008."""
import re

from . import project as model
from . import xmlfiles
from .files import Mistake


def _words(text):
    return re.split(r"[;,]", text or "")


def _tool(configuration, name):
    for tool in configuration.findall("Tool"):
        if tool.get("Name") == name:
            return tool
    return {}


def read(path, data, wanted):
    root = xmlfiles.parse(data)
    if root.tag != "VisualStudioProject":
        raise Mistake("is no project of Visual Studio .NET to 2008")
    result = model.Project(path)
    result.name = root.get("Name") or result.name
    configurations = {c.get("Name", ""): c for c in root.iterfind("Configurations/Configuration")}
    result.configuration = model.choose_configuration(list(configurations), wanted)
    _take_configuration(result, configurations[result.configuration])
    for file in root.iterfind("Files//File"):
        _take_file(result, file)
    return result


def _take_configuration(result, chosen):
    kinds = {"1": model.PROGRAM, "2": model.DLL, "4": model.STATIC}
    result.kind = kinds.get(chosen.get("ConfigurationType"))
    if result.kind is None:
        raise Mistake("makes neither a program nor a library")
    result.mfc = chosen.get("UseOfMFC", "0") != "0"
    result.characters = {"1": model.UNICODE, "2": model.MULTIBYTE}.get(
        chosen.get("CharacterSet"), model.PLAIN)
    for sheet in _words(chosen.get("InheritedPropertySheets")):
        if sheet.strip():
            result.note("%s: what property sheets say was not taken over" % sheet.strip())

    compiler = _tool(chosen, "VCCLCompilerTool")
    result.add_definitions(_words(compiler.get("PreprocessorDefinitions")), result.definitions)
    result.add_folders(_words(compiler.get("AdditionalIncludeDirectories")))
    if compiler.get("UsePrecompiledHeader", "0") in ("2", "3"):
        result.precompiled = compiler.get("PrecompiledHeaderThrough") or "stdafx.h"
    resources = _tool(chosen, "VCResourceCompilerTool")
    result.add_definitions(
        _words(resources.get("PreprocessorDefinitions")), result.resource_definitions)
    linker = _tool(chosen, "VCLinkerTool")
    result.add_libraries(re.findall(r'"[^"]+"|\S+', linker.get("AdditionalDependencies") or ""))
    if result.kind == model.PROGRAM and linker.get("SubSystem") == "1":
        result.kind = model.CONSOLE
    for name in ("VCPreBuildEventTool", "VCPreLinkEventTool", "VCPostBuildEventTool"):
        if _tool(chosen, name).get("CommandLine"):
            result.note("%s: a build event was not taken over" % name)


def _take_file(result, file):
    name = file.get("RelativePath")
    if not name:
        return
    plain = False
    for own in file.findall("FileConfiguration"):
        if own.get("Name", "").lower() != result.configuration.lower():
            continue
        if xmlfiles.is_true(own.get("ExcludedFromBuild")):
            return
        plain = _tool(own, "VCCLCompilerTool").get("UsePrecompiledHeader") == "0"
        if _tool(own, "VCCustomBuildTool").get("CommandLine"):
            result.note("%s: a custom build step was not taken over" % name)
    result.add_file(name, plain)
