"""Packs what the build made into Debian packages, and looks at them as their readers do.

    package.py BUILD

They come to BUILD/packages, for scripts/try-package.sh.
"""
import glob
import os
import re
import shutil
import subprocess
import sys

BUILD = os.path.abspath(sys.argv[1])
FOLDER = os.path.join(BUILD, "packages")
WEB_FILES = {"usr/lib/tarnwick/plugins/tarnwick_web.so", "usr/share/doc/tarnwick-web/changelog.gz",
             "usr/share/doc/tarnwick-web/copyright"}
# The exit code by which ctest knows a test that was skipped.
SKIPPED = 77
failures = []


def expect(holds, what):
    if not holds:
        failures.append(what)


def said(*command, **options):
    return subprocess.run(command, check=True, capture_output=True, text=True, env=dict(os.environ, LC_ALL="C.UTF-8"),
                          **options).stdout


def files_of(package):
    """Its files as (owner, mode, path without the leading point)."""
    rows = [line.split(None, 5) for line in said("dpkg-deb", "--contents", package).splitlines()]
    return [(row[1], row[0], row[5].split(" -> ")[0].removeprefix("./")) for row in rows if not row[0].startswith("d")]


def looks_at_files(package, expected=None):
    rows = files_of(package)
    for owner, mode, path in rows:
        program = path.startswith("usr/bin/")
        expect(owner == "root/root", path + " belongs to " + owner)
        expect(mode == ("-rwxr-xr-x" if program else "-rw-r--r--"), path + " has the mode " + mode)
        expect(path.startswith("usr/"), path + " lies outside of /usr")
    paths = {path for _, _, path in rows}
    expect(expected is None or paths == expected, "%s holds %r" % (os.path.basename(package), sorted(paths)))
    return paths


def field(package, name):
    return said("dpkg-deb", "--field", package, name).strip()


def looks_at_fields(program, web):
    depends = field(program, "Depends")
    for name in ("libqt6widgets6", "libqscintilla2-qt6", "libhunspell", "libchm1", "sensible-utils"):
        expect(name in depends, "the program does without " + name)
    expect("webengine" not in depends.lower(), "the program asks for a browser engine")
    expect("tarnwick-web" in field(program, "Recommends"), "the views are not recommended")
    if web:
        expect("webengine" in field(web, "Depends").lower(), "the views do without an engine")
        expect("tarnwick (= %s)" % field(program, "Version") in field(web, "Depends"), "the views fit any program")


def looks_at_complaints(packages):
    ended = subprocess.run(["lintian", "--allow-root", "--display-info", "--tag-display-limit", "0", *packages],
                           capture_output=True, text=True, env=dict(os.environ, LC_ALL="C.UTF-8"))
    output = ended.stdout + ended.stderr
    print("lintian:\n" + (output or "(nothing to say)"))
    expect(ended.returncode == 0 or output, "lintian ended with %d" % ended.returncode)
    for line in output.splitlines():
        expect(not re.match(r"[EW]: ", line), line)


def main():
    missing = [tool for tool in ("cpack", "dpkg-deb", "dpkg-shlibdeps", "fakeroot", "lintian") if not shutil.which(tool)]
    if missing:
        print("not installed here:", *missing)
        sys.exit(SKIPPED)
    shutil.rmtree(FOLDER, ignore_errors=True)
    said("cpack", "--config", os.path.join(BUILD, "CPackConfig.cmake"), "-B", FOLDER, cwd=BUILD)
    shutil.rmtree(os.path.join(FOLDER, "_CPack_Packages"))
    packages = sorted(glob.glob(os.path.join(FOLDER, "*.deb")), key=lambda path: field(path, "Package"))
    names = [field(package, "Package") for package in packages]
    built_web = os.path.exists(os.path.join(BUILD, "tarnwick_web.so"))
    expect(names == ["tarnwick", "tarnwick-web"][:1 + built_web], "packages: %r" % names)
    if not failures:
        program, web = packages[0], packages[1] if built_web else None
        files = looks_at_files(program)
        for part in ("usr/bin/tarnwick", "usr/bin/tarnwick-ftp", "usr/share/tarnwick/tarnwick.chm"):
            expect(part in files, "the package has no " + part)
        expect(not any("plugins" in path for path in files), "the plugin is in the program's package")
        if web:
            looks_at_files(web, WEB_FILES)
        looks_at_fields(program, web)
        looks_at_complaints(packages)
    for failure in failures[:20]:
        print(failure)
    print("%d packages, %d failures" % (len(packages), len(failures)))
    sys.exit(1 if failures else 0)


main()
