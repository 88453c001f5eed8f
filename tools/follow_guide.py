#!/usr/bin/env python3
"""Follows a guide of docs/ on a copy: takes its files, builds them and runs its tests.

  follow_guide.py SOURCE GUIDE COMPILER HELP_FACTS [LIBRARY...]

Blocks of the guide that begin ```LANGUAGE file=PATH are whole files; those with add=PATH after="LINE" or before="LINE" are put
there. Tests of the project that the guide runs beside its own are named by test=PATH. The string table, the layouts and the
help pages are made anew, so that what the guide says about them is put to the test too; the rest comes from the libraries
already built.
"""
import os
import re
import shutil
import subprocess
import sys
import tempfile


def blocks(guide):
    for info, body in re.findall(r"^```(\S.*)\n((?:.*\n)*?)^```$", guide, re.MULTILINE):
        yield info, body


class Copy:
    """The files that the guide makes or changes; all others are the source's."""

    def __init__(self, source, folder):
        self.source, self.folder = source, folder
        self.changed = []

    def path(self, name):
        return os.path.join(self.folder if name in self.changed else self.source, name)

    def take(self, verb, name, where, line, body):
        if verb == "file":
            if os.path.exists(self.path(name)):
                sys.exit(f"the guide's {name} is there already")
            text = body
        else:
            with open(self.path(name), encoding="utf-8") as old:
                text = old.read()
            if text.count(f"\n{line}\n") != 1:
                sys.exit(f"{name} has not one line {line}")
            both = line + "\n" + body if where == "after" else body + line + "\n"
            text = text.replace(f"\n{line}\n", "\n" + both)
        target = os.path.join(self.folder, name)
        os.makedirs(os.path.dirname(target), exist_ok=True)
        with open(target, "w", encoding="utf-8", newline="\n") as out:
            out.write(text)
        if name not in self.changed:
            self.changed.append(name)


def run(*command):
    done = subprocess.run(command, capture_output=True, text=True, check=False)
    print(done.stdout + done.stderr, end="")
    if done.returncode != 0:
        sys.exit("failed: " + " ".join(command))


def make_resources(copy, generated, help_facts):
    def tool(name, *arguments):
        run(sys.executable, os.path.join(copy.source, "tools", name), *arguments)

    layouts = os.path.join(copy.folder, "layouts")
    shutil.copytree(os.path.join(copy.source, "resources", "layouts"), layouts)
    for name in copy.changed:
        if name.endswith(".layout"):
            shutil.copy(copy.path(name), layouts)
    os.makedirs(generated)
    tool("embed_strings.py", copy.path("resources/strings.txt"), copy.path("src/text/ids.h"),
         os.path.join(generated, "string_table.inc"))
    tool("embed_layouts.py", os.path.join(generated, "layouts.inc"),
         *sorted(os.path.join(layouts, name) for name in os.listdir(layouts)))
    tool("make_help.py", copy.path("resources/help/topics.txt"), os.path.join(generated, "help"), help_facts,
         copy.path("resources/strings.txt"), copy.path("src/text/ids.h"),
         *(copy.path("src/" + name) for name in ("text/help.cpp", "mainwindow/main_menu.cpp", "mainwindow/main_menu.h")))


def main():
    source, name, compiler, help_facts, *libraries = sys.argv[1:]
    with open(os.path.join(source, "docs", name), encoding="utf-8") as page:
        guide = page.read()
    with tempfile.TemporaryDirectory(prefix="kavrel-guide-") as folder:
        copy, tests = Copy(source, folder), []
        for info, body in blocks(guide):
            found = re.search(r'(file|add)=(\S+)(?: (after|before)="(.*)")?', info)
            if found:
                copy.take(*found.groups(), body)
            tests += re.findall(r"test=(\S+)", info)
        generated = os.path.join(folder, "generated")
        make_resources(copy, generated, help_facts)
        # Texts and layouts hold the embedded tables; built here, they stand in for the library's, and so does what the
        # guide changed.
        sources = [path for path in copy.changed if path.endswith(".cpp")] + tests
        sources += ["src/text/texts.cpp", "src/ui/layout.cpp"]
        program = os.path.join(folder, "guide")
        includes = [os.path.join(folder, "src"), os.path.join(source, "src"), os.path.join(folder, "tests"),
                    os.path.join(source, "tests"), generated]
        # The headers beside a test, for a test's source that was changed and so lies elsewhere.
        includes += sorted({os.path.join(source, os.path.dirname(path)) for path in sources if path.startswith("tests/")})
        run(compiler, "-std=c++20", "-O0", "-Wall", "-Wextra", "-Wpedantic", "-Wconversion", "-Wshadow", "-Werror",
            *("-I" + path for path in includes), "-o", program, *map(copy.path, sources), *libraries,
            "-lgtest", "-lgtest_main", "-lpthread")
        run(program)


main()
