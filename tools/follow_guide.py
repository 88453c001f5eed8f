#!/usr/bin/env python3
"""Follows docs/new-dialog.md on a copy: takes its files, builds them and runs its test.

  follow_guide.py SOURCE COMPILER [LIBRARY...]

Blocks of the guide that begin ```LANGUAGE file=PATH are whole files; those with add=PATH after="LINE" are put behind that
line. The string table and the layouts are embedded anew, so that what the guide says about them is put to the test too; the
rest comes from the libraries already built.
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


def take(guide, source, copy):
    """Writes the guide's files; the paths of those that are new."""
    new = []
    for info, body in blocks(guide):
        found = re.search(r'(file|add)=(\S+)(?: after="(.*)")?', info)
        if not found:
            continue
        verb, path, after = found.groups()
        target = os.path.join(copy, path)
        os.makedirs(os.path.dirname(target), exist_ok=True)
        if verb == "file":
            if os.path.exists(os.path.join(source, path)):
                sys.exit(f"the guide's {path} is there already")
            text = body
            new.append(path)
        else:
            with open(target if os.path.exists(target) else os.path.join(source, path), encoding="utf-8") as old:
                text = old.read()
            if after + "\n" not in text:
                sys.exit(f"{path} has no line {after}")
            text = text.replace(after + "\n", after + "\n" + body, 1)
        with open(target, "w", encoding="utf-8", newline="\n") as out:
            out.write(text)
    return new


def run(*command):
    done = subprocess.run(command, capture_output=True, text=True, check=False)
    print(done.stdout + done.stderr, end="")
    if done.returncode != 0:
        sys.exit("failed: " + " ".join(command))


def main():
    source, compiler, *libraries = sys.argv[1:]
    with open(os.path.join(source, "docs", "new-dialog.md"), encoding="utf-8") as page:
        guide = page.read()
    with tempfile.TemporaryDirectory(prefix="kavrel-guide-") as copy:
        new = take(guide, source, copy)
        layouts = os.path.join(copy, "layouts")
        shutil.copytree(os.path.join(source, "resources", "layouts"), layouts)
        for path in new:
            if path.endswith(".layout"):
                shutil.copy(os.path.join(copy, path), layouts)
        generated = os.path.join(copy, "generated")
        os.makedirs(generated)
        tools = os.path.join(source, "tools")
        run(sys.executable, os.path.join(tools, "embed_strings.py"), os.path.join(copy, "resources", "strings.txt"),
            os.path.join(copy, "src", "text", "ids.h"), os.path.join(generated, "string_table.inc"))
        run(sys.executable, os.path.join(tools, "embed_layouts.py"), os.path.join(generated, "layouts.inc"),
            *sorted(os.path.join(layouts, name) for name in os.listdir(layouts)))
        sources = [os.path.join(copy, path) for path in new if path.endswith(".cpp")]
        # These two hold the embedded tables; built here, they stand in for the library's.
        sources += [os.path.join(source, "src", path) for path in ("text/texts.cpp", "ui/layout.cpp")]
        program = os.path.join(copy, "guide")
        run(compiler, "-std=c++20", "-O0", "-Wall", "-Wextra", "-Wpedantic", "-Wconversion", "-Wshadow", "-Werror",
            "-I" + os.path.join(copy, "src"), "-I" + os.path.join(source, "src"), "-I" + os.path.join(source, "tests"),
            "-I" + generated, "-o", program, *sources, *libraries, "-lgtest", "-lgtest_main", "-lpthread")
        run(program)


main()
