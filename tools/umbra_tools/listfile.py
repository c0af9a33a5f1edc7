"""The CMakeLists.txt of a project."""
import re

from . import project as model
from .files import Mistake

_OF_THE_BUILD = {"NDEBUG", "_DEBUG", "UNICODE", "_UNICODE", "_AFXDLL"}
_RESERVED = {"all", "clean", "edit_cache", "help", "install", "package", "rebuild_cache", "test"}
# Every program is linked with these.
_DEFAULT_LIBRARIES = {
    "advapi32", "comdlg32", "gdi32", "kernel32", "ole32", "oleaut32", "shell32", "user32", "uuid",
    "winspool",
}


def argument(text):
    """A word of CMake's language that means exactly this text."""
    if re.search(r"[\x00-\x1f]", text):
        raise Mistake("has a name with control characters")
    if re.fullmatch(r"[\w./+=:<>-]+", text, re.A):
        return text
    return '"%s"' % re.sub(r'([\\"$;])', r"\\\1", text)


def target_name(project):
    name = re.sub(r"[^\w.+-]", "_", project.name, flags=re.A) or "program"
    return name + "_program" if name.lower() in _RESERVED else name


def _call(command, words, per_line=False):
    if not words:
        return ""
    if per_line or len(command) + sum(len(w) + 1 for w in words) > 90:
        return "%s\n%s)\n" % (command, "\n".join("  " + word for word in words))
    return "%s%s%s)\n" % (command, "" if command.endswith("(") else " ", " ".join(words))


def _private(command, target, words):
    """A call about what a target uses itself."""
    return _call("%s(%s PRIVATE" % (command, target), words)


def write(project, forwards):
    """The text of the file."""
    target = target_name(project)
    head = "# Made by umbra-import from %s, configuration %s.\n" % (
        argument(project.path.replace("\\", "/").rpartition("/")[2]).strip('"'),
        argument(project.configuration).strip('"'))
    has_c = any(source.path.lower().endswith(".c") for source in project.sources)
    languages = "C CXX RC" if has_c else "CXX RC"
    library = (_library(project)[0] or ["umbra::mfc"])[0]
    parts = [
        head + _beginning(target, languages, library), _target(project, target),
        _use(project, target), _resources(project, target), _forwards(target, forwards),
        _precompiled(project, target),
    ]
    if project.mfc and project.kind in (model.PROGRAM, model.CONSOLE):
        comment = "# The libraries go beside it: it runs from where it is built.\n"
        parts.append(comment + "umbra_deploy(%s)\n" % target)
    if project.notes:
        notes = "".join("#   %s\n" % note for note in project.notes)
        parts.append("# What umbra-import has not taken over:\n" + notes)
    return "\n".join(part for part in parts if part)


def _beginning(target, languages, library):
    return """cmake_minimum_required(VERSION 3.25)
project(%s LANGUAGES %s)
if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release)
endif()
if(NOT TARGET %s) # A parent project may have it already.
  find_package(umbra REQUIRED)
endif()
""" % (target, languages, library)


def _target(project, target):
    heads = {
        model.PROGRAM: "add_executable(%s WIN32", model.CONSOLE: "add_executable(%s",
        model.DLL: "add_library(%s SHARED", model.STATIC: "add_library(%s STATIC",
    }
    sources = [argument(source.path) for source in project.sources]
    if not sources:
        raise Mistake("names no source that is there")
    text = _call(heads[project.kind] % target, sources, True)
    if project.kind == model.DLL:
        text += 'set_target_properties(%s PROPERTIES PREFIX "")\n' % target
    return text


def _library(project):
    if not project.mfc:
        return [], "# No MFC.\n"
    if project.characters == model.UNICODE:
        return ["umbra::mfc-unicode"], "# The character set is Unicode.\n"
    name = "multibyte" if project.characters == model.MULTIBYTE else "not set"
    return ["umbra::mfc"], "# The character set is %s: narrow strings.\n" % name


def _use(project, target):
    libraries, text = _library(project)
    libraries += [name for name in project.libraries if name not in _DEFAULT_LIBRARIES]
    text += _private("target_link_libraries", target, [argument(name) for name in libraries])
    text += _definitions(project, target)
    folders = [argument(folder) for folder in project.folders if folder != "."]
    folders = [folder.replace("@BUILD", "${CMAKE_CURRENT_BINARY_DIR}") for folder in folders]
    # Sources below folders include headers from the project's own folder as well.
    return text + _private("target_include_directories", target, ["."] + folders)


def _definitions(project, target):
    def wanted(word):
        return word.partition("=")[0] not in _OF_THE_BUILD

    definitions = [word for word in project.definitions if wanted(word)]
    if project.characters == model.MULTIBYTE and "_MBCS" not in definitions:
        definitions.append("_MBCS")
    if project.characters == model.UNICODE and not project.mfc:
        definitions += ["UNICODE", "_UNICODE"]
    text = ""
    if any(word.partition("=")[0] in ("NDEBUG", "_DEBUG") for word in project.definitions):
        text += "# NDEBUG and _DEBUG come from the build type.\n"
    words = [argument(word) for word in definitions]
    text += _private("target_compile_definitions", target, words)
    others = [word for word in project.resource_definitions
              if wanted(word) and word not in definitions and re.fullmatch(r"[\w=.]+", word)]
    words = ["$<$<COMPILE_LANGUAGE:RC>:%s>" % word for word in others]
    return text + _private("target_compile_definitions", target, words)


def _resources(project, target):
    return _call("umbra_add_resources(%s" % target, [argument(path) for path in project.resources])


def _forwards(target, forwards):
    if not forwards:
        return ""
    lines = ["%s %s" % (argument(name), argument(file)) for name, file in sorted(forwards.items())]
    return ("# How #include lines name headers, and what they are called.\n" +
            _call("umbra_forward_headers(%s" % target, lines, True))


def _precompiled(project, target):
    if not project.precompiled:
        return ""
    header = "$<$<COMPILE_LANGUAGE:CXX>:${CMAKE_CURRENT_SOURCE_DIR}/%s>" % project.precompiled
    plain = [argument(source.path) for source in project.sources if source.plain]
    text = "target_precompile_headers(%s PRIVATE\n  \"%s\")\n" % (target, header)
    if plain:
        text += _call("set_source_files_properties(", plain).rstrip(")\n") + \
            "\n  PROPERTIES SKIP_PRECOMPILE_HEADERS ON)\n"
    return text
