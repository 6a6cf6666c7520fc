#!/usr/bin/env python3
"""Writes the files that follow from the tables in this folder.

The tables (*.toml) are the only list of the library's functions. An entry gives, for one shape of
one operation: members ("types : descriptors"), arguments in order, checks in order, the frame
template that implements it and the documentation. From it come

  include/keli.h                 prototypes and documentation
  include/keli_status.h          status codes
  src/<group>/exports.cc         exported functions: the checks, then one call of the frame
  src/registry/registry_data.cc  reflection data for tests, bench, tool and bindings
  docs/reference/<group>.md      the same documentation for reading and searching

Usage: generate.py [--check]   (--check changes nothing and fails if a file is out of date)
"""

import difflib
import re
import sys
import textwrap
import tomllib

from tables import CHECKS, ROOT, kel, load

NOTE = "Written by api/generate.py from the tables in api/; do not edit."


def words(text, width, indent):
    """The text's paragraphs, wrapped."""
    out = []
    for paragraph in re.split(r"\n\s*\n", text.strip()):
        out += textwrap.wrap(" ".join(paragraph.split()), width, initial_indent=indent,
                             subsequent_indent=indent, break_on_hyphens=False,
                             break_long_words=False) + [""]
    return out[:-1]


def entry_checks(entry):
    """(status, text) of the entry's checks in order, those of at least one member."""
    out = []
    for word in entry.get("checks", "").split():
        status, text, condition = CHECKS[word]
        if any(condition(f) for f in entry["functions"]):
            out.append((status, text))
    return out


def check_text(status, text):
    return f"{status} if {text}" if status else text


def parallel_text(entry):
    members = entry["parallel"]
    return ("On large regions the rows are shared out among threads, with the same results"
            + (": " + ", ".join(members) if members is not True else "") + ".")


def status_header(statuses):
    out = [f"/* What the functions of keli return. {NOTE} */", "#ifndef KELI_STATUS_H",
           "#define KELI_STATUS_H", "", "#include <stdint.h>", "",
           "/* Errors are negative, warnings positive. Nothing is written when an error is returned. */",
           "typedef int32_t KelStatus;", "enum {"]
    out += [f"  {s['name']} = {s['value']}, /* {s['text']} */" for s in statuses]
    return "\n".join(out + ["};", "", "#endif", ""])


def header(tables):
    out = [f"/* keli: image-processing primitives. {NOTE} */", "#ifndef KELI_H", "#define KELI_H", "",
           '#include "keli_spec.h"', '#include "keli_status.h"',
           '#include "keli_types.h"', "", "#ifdef __cplusplus",
           'extern "C" {', "#endif"]
    for table in tables:
        out += ["", f"/* ==== {table['title']} ==== */"]
        for entry in table["entry"]:
            out += ["", "/**"]
            out += words(entry["brief"], 96, " * ")
            if "formula" in entry:
                out += [" *", f" *     {entry['formula']}"]
            if "text" in entry:
                out += [" *"] + [line or " *" for line in words(entry["text"], 96, " * ")]
            if entry.get("parallel"):
                out += [" *"] + words(parallel_text(entry), 96, " * ")
            checks = entry_checks(entry)
            if checks:
                text = "; ".join(check_text(s, t) for s, t in checks)
                out += [" *"] + words(f"Checks, in order: {text}.", 96, " * ")
            out += [" */"]
            out += [f"KELI_API {f.prototype};" for f in entry["functions"]]
    return "\n".join(out + ["", "#ifdef __cplusplus", "}", "#endif", "", "#endif", ""])


def exports(table):
    out = [f"// The exported functions: checks in their order, then one call of the frame. {NOTE}",
           '#include "core/checks.h"', '#include "keli.h"']
    out += [f'#include "{name}"' for name in table["include"]]
    out += ["", "using namespace keli;", ""]
    for entry in table["entry"]:
        for f in entry["functions"]:
            out.append(f"{f.definition} {{")
            for word in entry.get("checks", "").split():
                status, _, condition = CHECKS[word]
                text = condition(f)
                if text and status:
                    out.append(f"  if ({text}) return {status};")
                elif text:
                    out.append(f"  if (const KelStatus status = {text}) return status;")
            code = {"T": kel(f.types[0]), "D": kel(f.types[-1])} if f.types else {}
            code |= {"operation": f.operation, "team": f.team}
            if f.layouts:
                code |= {"layout": f.layouts[0], "from": f.layouts[0], "to": f.layouts[-1]}
            call = f"{entry['calls'].format(**code)}({', '.join(f.actuals)})"
            out += [f"  {'' if f.returns == 'void' else 'return '}{call};", "}"]
    return "\n".join(out + [""])


def c_string(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"').replace("\n", "\\n") + '"'


def enumerator(text):
    return "k" + text[0].upper() + text[1:]


def look_ups(functions):
    """Functions that tell what a check or a role is called."""
    out = ["CheckInfo about(Check check) {", "  switch (check) {"]
    for word, (status, text, _) in CHECKS.items():
        out += [f"    case Check::{enumerator(word)}:", f"      return {{{status or 'kelStatusOk'}, {c_string(text)}}};"]
    out += ["  }", '  return {kelStatusOk, ""};', "}", "", "const char* nameOf(Role role) {",
            "  switch (role) {"]
    for role in sorted({a.role for f in functions for a in f.arguments}):
        out += [f"    case Role::{enumerator(role)}:", f"      return {c_string(role)};"]
    return out + ["    default:", '      return "";', "  }", "}"]


def registry(tables, statuses):
    functions = [f for t in tables for e in t["entry"] for f in e["functions"]]
    entries = [(t, e) for t in tables for e in t["entry"]]
    out = [f"// Reflection data of every exported function. {NOTE}", '#include <iterator>', '', '#include "keli.h"',
           '#include "registry/call.h"', '#include "registry/registry.h"', "",
           "namespace keli::registry {", "namespace {", "", "constexpr Argument kArguments[] = {"]
    first_argument = []
    count = 0
    for f in functions:
        first_argument.append(count)
        count += len(f.arguments)
        for a in f.arguments:
            sample = f"Type::k{a.sample}" if a.sample else "Type::kNone"
            layout = f"Layout::{a.layout}" if a.layout else "Layout::C1"
            length = a.array.strip("[]") or "0"
            out.append(f"    {{{c_string(a.name)}, Role::{enumerator(a.role)}, {sample}, {layout}, "
                       f"{length}}},")
    out += ["};", "", "constexpr Check kChecks[] = {"]
    first_check, count = [], 0
    for _, entry in entries:
        checks = entry.get("checks", "").split()
        first_check.append((count, len(checks)))
        count += len(checks)
        out += [f"    Check::{enumerator(c)}," for c in checks]
    out += ["};", "", "constexpr Entry kEntries[] = {"]
    for (table, entry), (begin, size) in zip(entries, first_check):
        out.append(f"    {{{c_string(table['group'])}, {c_string(entry['brief'])}, "
                   f"{c_string(entry.get('formula', ''))}, "
                   f"{c_string(' '.join(entry.get('text', '').split()))}, "
                   f"{{kChecks + {begin}, {size}}}}},")
    out += ["};", "", "const Function kFunctions[] = {"]
    index = {id(e): i for i, (_, e) in enumerate(entries)}
    for f, begin in zip(functions, first_argument):
        flags = [str(flag).lower() for flag in
                 (f.in_place, "M" in f.descriptor, f.parallel)]
        flags.append(f"Reach::k{f.reach[0].upper()}{f.reach[1:]}")
        out.append(f"    {{{c_string(f.name)}, {c_string(f.operation)}, {c_string(f.descriptor)}, "
                   f"{c_string(f.prototype)}, &kEntries[{index[id(f.entry)]}], "
                   f"{{kArguments + {begin}, {len(f.arguments)}}}, {', '.join(flags)}, "
                   f"makeCall(&{f.name})}},")
    out += ["};", "", "constexpr Status kStatuses[] = {"]
    out += [f"    {{{s['value']}, {c_string(s['name'])}, {c_string(s['text'])}}}," for s in statuses]
    out += ["};", "", "}  // namespace", "",
            "Span<Function> functions() { return {kFunctions, std::size(kFunctions)}; }",
            "Span<Status> statuses() { return {kStatuses, std::size(kStatuses)}; }", ""]
    out += look_ups(functions) + ["", "}  // namespace keli::registry", ""]
    return "\n".join(out)


def reference(table):
    out = [f"<!-- {NOTE} -->", f"# {table['title']}", ""]
    for entry in table["entry"]:
        functions = entry["functions"]
        out += [f"## {entry.get('operation', ', '.join(entry.get('names', [])))}: {entry['brief']}", ""]
        if "formula" in entry:
            out += [f"    {entry['formula']}", ""]
        if "text" in entry:
            out += words(entry["text"], 100, "") + [""]
        if entry.get("parallel"):
            out += words(parallel_text(entry), 100, "") + [""]
        checks = entry_checks(entry)
        if checks:
            out += ["Checks, in order:", ""]
            out += [f"{i}. {check_text(s and f'`{s}`', t)}"
                    for i, (s, t) in enumerate(checks, 1)] + [""]
        out += ["```c"] + [f"{f.prototype};" for f in functions] + ["```", ""]
    return "\n".join(out)


def main():
    tables = load()
    statuses = tomllib.loads((ROOT / "api/status.toml").read_text())["status"]
    files = {"include/keli.h": header(tables),
             "include/keli_status.h": status_header(statuses),
             "src/registry/registry_data.cc": registry(tables, statuses)}
    for table in tables:
        files[f"src/{table['group']}/exports.cc"] = exports(table)
        files[f"docs/reference/{table['group']}.md"] = reference(table)
    stale = 0
    for name, text in files.items():
        path = ROOT / name
        old = path.read_text() if path.exists() else ""
        if old == text:
            continue
        if "--check" in sys.argv[1:]:
            stale += 1
            sys.stdout.writelines(difflib.unified_diff(
                old.splitlines(True), text.splitlines(True), name, f"{name} (from the tables)"))
        else:
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text)
            print(f"wrote {name}")
    if stale:
        raise SystemExit(f"{stale} files are out of date: run './dev api'")


if __name__ == "__main__":
    main()
