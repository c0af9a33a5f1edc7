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
}  # fmt: skip


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


def write(project, forwards):
    """The text of the file."""
    target = target_name(project)
    head = "# Made by umbra-import from %s, configuration %s.\n" % (
        argument(project.path.replace("\\", "/").rpartition("/")[2]).strip('"'),
        argument(project.configuration).strip('"'))  # fmt: skip
    languages = "C CXX RC" if any(s.path.lower().endswith(".c") for s in project.sources) else "CXX RC"
    library = (_library(project)[0] or ["umbra::mfc"])[0]
    parts = [head + _beginning(target, languages, library), _target(project, target), _use(project, target)]
    parts.append(_resources(project, target))
    parts.append(_forwards(target, forwards))
    parts.append(_precompiled(project, target))
    if project.mfc and project.kind in (model.PROGRAM, model.CONSOLE):
        parts.append("# The libraries go beside it: it runs from where it is built.\numbra_deploy(%s)\n" % target)
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
    }  # fmt: skip
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
    comment = "# The character set is %s: narrow strings.\n"
    return ["umbra::mfc"], comment % ("multibyte" if project.characters == model.MULTIBYTE else "not set")


def _use(project, target):
    libraries, comment = _library(project)
    libraries += [l for l in project.libraries if l not in _DEFAULT_LIBRARIES]
    text = comment + _call("target_link_libraries(%s PRIVATE" % target, [argument(l) for l in libraries])
    definitions = [d for d in project.definitions if d.partition("=")[0] not in _OF_THE_BUILD]
    if project.characters == model.MULTIBYTE and "_MBCS" not in definitions:
        definitions.append("_MBCS")
    if project.characters == model.UNICODE and not project.mfc:
        definitions += ["UNICODE", "_UNICODE"]
    if any(d.partition("=")[0] in ("NDEBUG", "_DEBUG") for d in project.definitions):
        text += "# NDEBUG and _DEBUG come from the build type.\n"
    text += _call("target_compile_definitions(%s PRIVATE" % target, [argument(d) for d in definitions])
    others = [d for d in project.resource_definitions
              if d.partition("=")[0] not in _OF_THE_BUILD and d not in definitions]  # fmt: skip
    text += _call("target_compile_definitions(%s PRIVATE" % target,
                  ["$<$<COMPILE_LANGUAGE:RC>:%s>" % d for d in others if re.fullmatch(r"[\w=.]+", d)])  # fmt: skip
    folders = [argument(f).replace("@BUILD", "${CMAKE_CURRENT_BINARY_DIR}") for f in project.folders]
    # Sources below folders include headers from the project's own folder as well.
    text += _call("target_include_directories(%s PRIVATE" % target, ["."] + [f for f in folders if f != "."])
    return text


def _resources(project, target):
    return _call("umbra_add_resources(%s" % target, [argument(path) for path in project.resources])


def _forwards(target, forwards):
    if not forwards:
        return ""
    lines = ["%s %s" % (argument(name), argument(file)) for name, file in sorted(forwards.items())]
    return ("# How #include lines name headers, and what they are called.\n" +
            _call("umbra_forward_headers(%s" % target, lines, True))  # fmt: skip


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
