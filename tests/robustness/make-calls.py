#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Writes the constructors and functions of the classes, as tests/interface has them, as C++ that
calls each with values made on the spot: make-calls.py <classes> <directory> <out>. The classes are
a file of lines "class|option|text" in the order of the list of classes."""
import re
import sys

# Events and painters come from Qt, and an instance is given back to where it was taken.
NOT_MADE = re.compile(r"Event ?\*|QPainter ?[&*]|QStyleOption|QPixmap ?\*|StringRollingData|"
                      r"^Sp\w+ ?\*")

# What they return belongs to the caller.
MAKERS = ("GetInstance",)


def arguments(text):
    """The types between the parentheses, without the const references that take any value."""
    types, depth, start = [], 0, 0
    for at, letter in enumerate(text + ","):
        depth += (letter in "<(") - (letter in ">)")
        if letter == "," and depth == 0:
            types.append(text[start:at].strip())
            start = at + 1
    return [re.sub(r" const&$", "", one) for one in types if one]


def values(types):
    return ", ".join(f"v.value<{one}>()" for one in types)


def told(name, types):
    """Statements that make the arguments one after the other, and tell them; and their names."""
    names = [f"a{at}" for at in range(len(types))]
    made = "".join(f"auto &&{one} = v.value<{kind}>(); " for one, kind in zip(names, types))
    return f'{made}v.track.add({", ".join([chr(34) + name + chr(34)] + names)});', ", ".join(names)


def read_functions(path):
    for line in open(path, encoding="utf-8"):
        match = re.match(r"function (\w+)::(\w+)\((.*)\)(?: const)?$", line.strip())
        if match:
            yield match.group(1), match.group(2), arguments(match.group(3))


def write_class(out, name, options, directory):
    functions = list(read_functions(f"{directory}/{name.lower()}.txt"))
    text = open(f"{directory}/{name.lower()}.txt", encoding="utf-8").read()
    signals = set(re.findall(r"signal (\w+)\(", text))
    properties = set(re.findall(r"^property .* (\w+):", text, re.M)) # read after each write
    out.append(f"void add{name}(std::vector<DrivenClass> &classes)\n{{")
    out.append(f'    DrivenClass c;\n    c.name = "{name}";')
    for owner, function, types in functions:
        if any(NOT_MADE.search(one) for one in types):
            continue
        made, names = told(function, types)
        if function == owner:
            out.append(f"    c.constructors.push_back([](Values &v) -> QObject * "
                       f"{{ {made} return new {name}({names}); }});")
        elif function not in signals | properties:
            call = f"o.{function}({names})"
            done = f"delete {call}" if function in MAKERS else f"static_cast<void>({call})"
            out.append(f"    c.addCall<{name}>([](auto &o, Values &v) -> "
                       f"decltype(void(o.{function}({values(types)}))) {{ {made} {done}; }});")
    for promise in options["PROMISES"]:
        out.append(f'    c.promises.push_back({{"{promise}", [](QObject *object) {{\n'
                   f"        const auto &o = static_cast<const {name} &>(*object);\n"
                   f"        return {promise};\n    }}}});")
    for signal in options["SIGNALS_INSIDE_QT"]:
        out.append(f'    c.signalsInsideQt += "{signal}";')
    for number in options["TIMERS"]:
        out.append(f"    c.timers = {number};")
    out.append("    classes.push_back(std::move(c));\n}\n")


def main(classes, directory, target):
    listed = {}
    for line in open(classes, encoding="utf-8"):
        name, option, text = line.rstrip("\n").split("|", 2)
        listed.setdefault(name, {one: [] for one in
                                 ("PROMISES", "SIGNALS_INSIDE_QT", "TIMERS")})
        if option:
            listed[name][option].append(text)
    out = ['#include "drivenclass.h"\n#include "values.h"\n\n#include "panelkitclasses.h"\n',
           "namespace\n{\n"]
    for name, options in listed.items():
        write_class(out, name, options, directory)
    out.append("} // namespace\n\nconst std::vector<DrivenClass> &drivenClasses()\n{")
    out.append("    static const auto classes = [] {\n        std::vector<DrivenClass> all;")
    out += [f"        add{name}(all);" for name in listed]
    out.append("        return all;\n    }();\n    return classes;\n}")
    with open(target, "w", encoding="utf-8") as file:
        file.write("\n".join(out) + "\n")


main(*sys.argv[1:])
