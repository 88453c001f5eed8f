#!/usr/bin/env python3
"""Makes the pages of the manual, in both languages, and the completion of bash.

  make_manual.py FACTS TEMPLATES CHANGELOG OUT

FACTS is the program that tells the rows of programs and commands (tools/command_facts.cpp); TEMPLATES the folder of the pages'
words (docs/manual), in which @NAME@ stands for what is made of the rows; CHANGELOG (CHANGELOG.md) tells the day of the version.
OUT gets man/man1, man/ja/man1 and completions.
"""
import json
import os
import re
import subprocess
import sys

LANGUAGES = {"en": "", "ja": ".ja"}


class Wrong(Exception):
    """Why nothing can be made."""


def day_of(version, changelog):
    """The day of the version's heading, "## 1.0.0 (2026-11-23)"; that must be the first one."""
    heading = re.search(r"^## (\S+) \((\d{4}-\d\d-\d\d)\)$", changelog, re.MULTILINE)
    if heading is None:
        raise Wrong("the changelog has no heading such as ## 1.0.0 (2026-11-23)")
    if heading[1] != version:
        raise Wrong(f"the changelog begins with {heading[1]}, but the program is {version}")
    return heading[2]


def roff(text):
    """A text as it is, for roff."""
    text = text.replace("\\", "\\e").replace("-", "\\-")
    return "\n".join("\\&" + line if line[:1] in (".", "'") else line for line in text.split("\n"))


def usage_line(row, usage):
    """Names in bold, what stands for something in italics."""
    words = [r"\fB" + roff(" ".join(filter(None, (row["program"], row["name"])))) + r"\fR"]
    for word in usage.split():
        word = re.sub(r"\b[A-Z]{3,}\b", lambda m: "\0I" + m[0] + "\0R", word)
        word = re.sub(r"--[a-z]+", lambda m: "\0B" + m[0] + "\0R", word)
        words.append(roff(word).replace("\0", "\\f"))
    return " ".join(words)


def synopsis(row):
    return "\n.br\n".join(usage_line(row, usage) for usage in row["usages"])


def option_rows(options, language):
    lines = []
    for option in options:
        value = " " + r"\fI" + roff(option["value"]) + r"\fR" if option["value"] else ""
        lines += [".TP", r"\fB" + roff(option["name"]) + r"\fR" + value, roff(option["says"][language])]
    return lines


def command_section(row, language):
    lines = [".SS " + row["name"], synopsis(row), ".PP", roff(row["does"][language])]
    if row["argument"]:
        lines += [".TP", r"\fI" + row["argument"] + r"\fR", roff(row["argument_says"][language])]
    return lines + option_rows(row["options"], language)


def statuses(rows, language):
    """Each number once; where rows say different things of it, the commands are named."""
    said = {}
    for row in rows:
        for status in row["statuses"]:
            said.setdefault(status["number"], {}).setdefault(status["says"][language], []).append(row["name"])
    lines = []
    for number in sorted(said):
        for words, names in said[number].items():
            which = "" if len(names) == len(rows) or not all(names) else f" ({', '.join(names)})"
            lines += [".TP", rf"\fB{number}\fR", roff(words + which)]
    return lines


def page(facts, name, language, template, day):
    program = next(row for row in facts["programs"] if row["program"] == name)
    commands = facts["commands"] if name == "kavrel-cli" else []
    own = program["options"] + facts["common_options"]
    if commands:
        own = own + [facts["language_of_help"]]
    parts = {
        "DATE": day,
        "VERSION": facts["version"],
        "SYNOPSIS": synopsis(program),
        "OPTIONS": "\n".join(option_rows(own, language)),
        "COMMANDS": "\n".join(line for row in commands for line in command_section(row, language)),
        "STATUSES": "\n".join(statuses(commands or [program], language)),
    }
    return re.sub("@([A-Z]+)@", lambda m: parts[m[1]], template)


COMPLETION = """# bash completion for {name}; made of the program's own table.

{function}() {{
  local word=${{COMP_WORDS[COMP_CWORD]}} before=${{COMP_WORDS[COMP_CWORD - 1]}} options
  COMPREPLY=()
{first}  case "{key}$before" in
{values}
  esac
  case "{where}" in
{options}
  esac
  if [[ $word == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
  {files}fi
}}
complete -o filenames -F {function} {name}
"""
COMMANDS = """  if [[ $COMP_CWORD = 1 && $word != -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "{names}" -- "$word")
    return
  fi
"""


def proposals(arguments):
    return f'mapfile -t COMPREPLY < <(compgen {arguments} -- "$word")'


def action_of(option):
    """What is proposed for the option's value; None for an option without one."""
    if option["kind"] == "none":
        return None
    if option["kind"] in ("file", "folder"):
        return proposals("-f" if option["kind"] == "file" else "-d")
    if "|" in option["value"]:
        return proposals('-W "' + option["value"].replace("|", " ") + '"')
    return ":"


def completion(facts, name):
    """A command as the first word, options behind "-", an option's values behind it, else files."""
    program = next(row for row in facts["programs"] if row["program"] == name)
    commands = facts["commands"] if name == "kavrel-cli" else []
    values, options = [], []
    # The program's own row stands last, for it goes with every other first word.
    for row in commands + [program]:
        own = row["options"] + facts["common_options"]
        if all(option["name"] not in ("--language", "--locale") for option in own):
            own = own + [facts["language_of_help"]]
        command = f'"{row["name"]} ' if row["name"] else '*" ' if commands else '"'
        for option in own:
            if (action := action_of(option)) is not None:
                values.append(f'    {command}{option["name"]}") {action}; return ;;')
        which = f'"{row["name"]}"' if row["name"] else "*"
        options.append(f"    {which}) options=\"{' '.join(option['name'] for option in own)}\" ;;")
    return COMPLETION.format(
        name=name, function="_" + name.replace("-", "_"), values="\n".join(values), options="\n".join(options),
        key="${COMP_WORDS[1]} " if commands else "", where="${COMP_WORDS[1]}" if commands else "",
        first=COMMANDS.format(names=" ".join(row["name"] for row in commands)) if commands else "",
        files="else\n    " + proposals("-f") + "\n  " if commands else "")


def write(path, text):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "w", encoding="utf-8", newline="\n") as out:
        out.write(text)


def main():
    facts_program, templates, changelog, out = sys.argv[1:]
    facts = json.loads(subprocess.run([*os.environ.get("KAVREL_EMULATOR", "").split(), facts_program], check=True,
                                      stdout=subprocess.PIPE).stdout)
    with open(changelog, encoding="utf-8") as file:
        day = day_of(facts["version"], file.read())
    for name in ("kavrel", "kavrel-cli"):
        for language, ending in LANGUAGES.items():
            with open(os.path.join(templates, f"{name}{ending}.1.in"), encoding="utf-8") as file:
                text = page(facts, name, language, file.read(), day)
            write(os.path.join(out, "man", "" if language == "en" else language, "man1", name + ".1"), text)
        write(os.path.join(out, "completions", name), completion(facts, name))


if __name__ == "__main__":
    try:
        main()
    except Wrong as wrong:
        sys.exit(f"manual: {wrong}")
