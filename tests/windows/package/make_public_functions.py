#!/usr/bin/env python3
"""Writes public_functions.cpp: a program that uses every public function and variable that the public headers declare.

It reads the headers as they are formatted here. Run it after a change of a public declaration, without arguments.
"""
import argparse
import pathlib
import re
import sys

here = pathlib.Path(__file__).resolve().parent
toolkit = here.parents[2] / "toolkit"
EXCLUDED = ("frame/LifeWatch.h",)
CALLABLES = {}  # types with parentheses, by the word that stands for them
TYPES = {}  # nested types of classes, by their last name


def headers():
    seen, todo = [], ["instrument_ui.h"]
    while todo:
        header = todo.pop(0)
        if header in seen or header.startswith(EXCLUDED):
            continue
        seen.append(header)
        found = re.findall(r'#include "([^"]+)"', (toolkit / header).read_text())
        todo += [name for name in found if (toolkit / name).exists()]
    return sorted(seen)


def cleaned(text):
    text = re.sub(r"//.*", "", text)
    text = re.sub(r"^\s*#.*$", "", text, flags=re.M)
    text = re.sub(r"^\s*DECLARE_\w+\(.*\)$", "", text, flags=re.M)
    text = re.sub(r"(\w+) \(\*(\w+)\)(\([^()]*\))", r"std::type_identity_t<\1 (*)\3> \2", text)
    return re.sub(r"std::(?:function|type_identity_t)<[^<>]*>", hidden, text)


def hidden(found):
    return next((word for word, kind in CALLABLES.items() if kind == found.group(0)), None) or add(found.group(0))


def add(kind):
    word = f"callable_{len(CALLABLES)}"
    CALLABLES[word] = kind
    return word


def shown(text):
    return re.sub(r"callable_\d+", lambda found: CALLABLES[found.group(0)], text)


def split(parameters):
    parts, depth, start = [], 0, 0
    for at, letter in enumerate(parameters):
        depth += (letter in "(<{") - (letter in ")>}")
        if letter == "," and depth == 0:
            parts.append(parameters[start:at])
            start = at + 1
    parts.append(parameters[start:])
    return [part.split("=")[0].strip() for part in parts if part.strip()]


def arguments(parameters):
    """The parameters as they can be declared again, and their names."""
    declared, names = [], []
    for number, part in enumerate(split(parameters)):
        if part == "...":
            continue
        named = re.match(r"(.*[\s*&>])(\w+)$", part, re.S)
        kind = named.group(1).strip() if named else part
        declared.append(f"{kind} a{number}")
        names.append(f"std::forward<{kind}>(a{number})")
    return declared, names


def statements(body):
    """The declarations of a scope, each with its own nested braces."""
    depth, start = 0, 0
    for at, letter in enumerate(body):
        if letter == "{":
            depth += 1
        elif letter == "}":
            depth -= 1
            if depth == 0 and not re.match(r"\s*;", body[at + 1:]):
                yield body[start:at + 1].strip()
                start = at + 1
        elif letter == ";" and depth == 0:
            yield body[start:at].strip()
            start = at + 1


FUNCTION = re.compile(r"^(?P<before>[^()]*?)(?P<name>operator\s*\(\)|operator\s*[^\s(]+|~?\w+)\s*"
                      r"\((?P<parameters>(?:[^()]|\([^()]*\))*)\)(?P<after>[^{:]*)", re.S)
WORDS = r"\b(INSTRUMENT_UI_API|virtual|static|explicit|afx_msg|extern|inline|constexpr|CALLBACK)\b"


def lines_of(scope, body, inside_class, out):
    visible = not inside_class
    types = re.findall(r"\b(?:enum|struct|class)\s+(\w+)\s*\{|\busing (\w+) =", body) if scope else []
    if inside_class:
        TYPES.update({kind or alias: f"{scope}::{kind or alias}" for kind, alias in types})

    def qualified(text):
        for kind, full in TYPES.items():
            text = re.sub(rf"(?<!::)\b{kind}\b", full, text)
        return text

    # A member that begins with 0 is no pure function.
    abstract = inside_class and re.search(r"\)[^;{}=]*=\s*0\s*;", body)
    name_of_class = scope.split("::")[-1] if inside_class else None
    constructors = 0
    for statement in statements(body):
        while label := re.match(r"(public|protected|private):\s*", statement):
            visible = label.group(1) == "public"
            statement = statement[label.end():]
        if not visible or not statement:
            continue
        nested = re.match(r"(class|struct|namespace)\s+(?:INSTRUMENT_UI_API\s+)?(\w+)[^;{]*\{(.*)\}$", statement, re.S)
        if nested:
            inner = f"{scope}::{nested.group(2)}" if scope else nested.group(2)
            inner_body = nested.group(3)
            if nested.group(1) == "struct":
                inner_body = "public:\n" + inner_body
            lines_of(inner, inner_body, nested.group(1) != "namespace", out)
            continue
        if re.match(r"(enum|using|friend|template|class \w+$|struct \w+$|typedef|static_assert)\b", statement):
            continue
        function = FUNCTION.match(statement)
        if function and " = " in function.group("before"):  # a variable with its first value
            continue
        if not function:
            variable = re.match(r"(?:extern |static )+.*?(\w+)(?:\[\w+\])?$", statement, re.S)
            if variable and "constexpr" not in statement:
                out.append(f"    Use(&{scope}::{variable.group(1)});" if scope else f"    Use(&{variable.group(1)});")
            continue
        after = function.group("after")
        if "= delete" in statement or re.search(r"=\s*0$", statement):
            continue
        name = re.sub(r"\s+", "", function.group("name"))
        result = qualified(re.sub(WORDS, "", function.group("before")).strip())
        declared, names = arguments(qualified(function.group("parameters")))
        if name.startswith("~"):
            continue
        if name == name_of_class:
            if not abstract:
                constructors += 1
                out.append(f"    Use(+[]({', '.join(declared)}) {{ delete new {scope}({', '.join(names)}); }});")
            continue
        returned = result.replace("auto", "").strip()
        arrow = f" -> {returned}" if returned else ""
        call = f"{name}({', '.join(names)})"
        if not inside_class:
            full = f"{scope}::{call}" if scope else f"::{call}"
            out.append(f"    Use(+[]({', '.join(declared)}){arrow} {{ return {full}; }});")
        elif re.search(r"\bstatic\b", function.group("before")):
            out.append(f"    Use(+[]({', '.join(declared)}){arrow} {{ return {scope}::{call}; }});")
        else:
            const = " const" if re.search(r"\bconst\b", after) else ""
            own = ", ".join([f"{scope}{const} & object"] + declared)
            out.append(f"    Use(+[]({own}){arrow} {{ return object.{scope}::{call}; }});")
    if inside_class and not abstract and constructors == 0 and "= delete" not in body:
        out.append(f"    Use(+[] {{ delete new {scope}; }});")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--output", type=pathlib.Path, default=here / "public_functions.cpp",
                        help="the file to write instead of the one beside this program")
    parser.add_argument("--check", action="store_true",
                        help="write nothing, and fail where the file has something else than would be written")
    options = parser.parse_args()
    out = []
    for header in headers():
        lines_of("", cleaned((toolkit / header).read_text()), False, [])  # learns the nested types
    for header in headers():
        lines = []
        lines_of("", cleaned((toolkit / header).read_text()), False, lines)
        if lines:
            out += [f"\n    // {header}"] + lines
    includes = "\n".join(f'#include "{header}"' for header in headers() if header != "instrument_ui.h")
    text = (
        "// Written by make_public_functions.py. Uses what the public headers declare, so that a function that the module\n"
        "// does not export keeps this program from being linked.\n\n"
        "// clang-format off\n"
        '#include "instrument_ui.h"\n\n' + includes + "\n\n#include <type_traits>\n#include <utility>\n\n"
        "using namespace registry_settings;\nusing namespace xtree;\n\nnamespace\n{\n"
        "/// Keeps the compiler from leaving it out.\n"
        "template <typename T> void Use(T used)\n{\n    [[maybe_unused]] static T volatile place;\n    place = used;\n}\n\n"
        "void UseAll()\n{\n" + shown("\n".join(out)).lstrip("\n") + "\n}\n} // namespace\n\n"
        "int main()\n{\n    UseAll();\n    return 0;\n}\n")
    if not options.check:
        options.output.write_text(text)
    elif options.output.read_text() != text:
        sys.exit(f"{options.output} is not of the present headers; {pathlib.Path(__file__).name} writes it anew")
    print(sum(line.startswith("    Use") for line in out), "uses")


main()
