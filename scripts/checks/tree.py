"""What the checks share: the project's root and files, and how a check reports.

Every check takes the root of the tree to look at as its only argument; without one it looks at this project.
"""

import os
import subprocess
import sys
from pathlib import Path

MODULES = ("co", "nx", "loc", "quill")
NOT_INSTALLED = {"quill/quill_internal.h"}

ROOT = Path(sys.argv[1] if len(sys.argv) > 1 else Path(__file__).parents[2]).resolve()
BUILD = ROOT / "build" / "release"
LIBRARY = BUILD / "libquill.so"


def command(*words, **options):
    """Runs a command; its result holds both outputs as one text, and the exit status."""
    environment = {**os.environ, "LC_ALL": "C", **options.pop("env", {})}
    return subprocess.run([str(word) for word in words], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          errors="replace", env=environment, check=False, **options)


def output(*words, **options):
    """The output of a command that must succeed."""
    result = command(*words, **options)
    if result.returncode:
        sys.exit(f"{' '.join(map(str, words))} failed:\n{result.stdout}")
    return result.stdout


def files(*suffixes):
    """The project's files with these suffixes (all without any), as paths relative to the root: what git has or would
    add; in a tree that is no clone, everything but build/."""
    names = command("git", "-c", "safe.directory=*", "-C", ROOT, "ls-files", "-z", "--cached", "--others",
                    "--exclude-standard") if (ROOT / ".git").exists() else None
    if names and names.returncode == 0:
        paths = [Path(name) for name in names.stdout.split("\0") if name]
    else:
        paths = [path.relative_to(ROOT) for path in ROOT.rglob("*")]
    paths = [path for path in paths if path.parts[0] not in ("build", ".git") and (ROOT / path).is_file()]
    return sorted({path for path in paths if not suffixes or path.suffix in suffixes})


def text(path):
    return (ROOT / path).read_text(encoding="utf-8", errors="replace")


def public_headers():
    """The headers of the modules that users see, relative to source/."""
    headers = [path.relative_to("source") for path in files(".h")
               if len(path.parts) == 3 and path.parts[0] == "source" and path.parts[1] in MODULES]
    return [header for header in headers if header.as_posix() not in NOT_INSTALLED]


def built(path):
    if not path.exists():
        sys.exit(f"{path} is not there: build the release preset first")
    return path


def report(wrong, good):
    """Ends the check: with what is wrong, one a line, or with a line that says what was found to be good."""
    for line in wrong:
        print(line)
    if not wrong:
        print(good)
    sys.exit(1 if wrong else 0)
