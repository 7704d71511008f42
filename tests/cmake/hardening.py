"""What keeps a fault from becoming a way into the program, read off what the build made of each type that users get.

    hardening.py SOURCE BUILD PROGRAM [PLUGIN] [CLIENT]
"""
import json
import os
import re
import shlex
import subprocess
import sys
import tempfile

# The calls of the C library that a fault would reach memory by, with a buffer whose size the compiler knows.
PROBE = """#include <cstring>
#include <unistd.h>
long Probe(const char* text, unsigned long length) {
    char copy[16];
    std::memcpy(copy, text, length);
    return read(0, copy, length) + copy[0];
}
"""
# The type that the build at hand has is looked at as it is; these are configured for the purpose.
TYPES = ("", "Release", "RelWithDebInfo", "MinSizeRel", "None")
failures = []


def expect(holds, what):
    if not holds:
        failures.append(what)


def readelf(option, path):
    return subprocess.run(["readelf", option, path], check=True, capture_output=True, text=True,
                          env=dict(os.environ, LC_ALL="C")).stdout


def looks_at_binary(path, is_program):
    name = os.path.basename(path)
    dynamic = readelf("-dW", path)
    segments = readelf("-lW", path)
    expect("DYN" in readelf("-hW", path) and "TEXTREL" not in dynamic, name + " has fixed addresses")
    expect(not is_program or re.search(r"FLAGS_1\).*\bPIE\b", dynamic), name + " is no position-independent program")
    expect("GNU_RELRO" in segments, name + " has no part that is read-only after relocation")
    expect(re.search(r"FLAGS_1\).*\bNOW\b", dynamic), name + " leaves its tables open for late binding")
    expect(re.search(r"GNU_STACK.* RW ", segments), name + " has a stack that runs code")
    expect("__stack_chk_fail" in readelf("-sW", path), name + " has no stack protector")


def commands_of(source, build):
    """The compiler's command lines for what users get, as lists of words, with the objects they make."""
    with open(os.path.join(build, "compile_commands.json"), encoding="utf-8") as file:
        entries = json.load(file)
    ours = os.path.join(source, "src") + os.sep
    for entry in entries:
        if "cmake_pch" in entry["file"]:  # a header that is read in advance, no object
            continue
        words = shlex.split(entry["command"])
        if entry["file"].startswith((ours, os.path.join(build, "src") + os.sep)):
            yield words, os.path.join(build, words[words.index("-o") + 1])


def flags_of(words):
    """A command line without what differs from file to file."""
    flags, rest = [], iter(words)
    for word in rest:
        if word in ("-o", "-c", "-isystem", "-include"):
            next(rest)
        elif not re.match(r"-I|-D(?!_FORTIFY)|.*ccache$", word):
            flags.append(word)
    return tuple(flags)


def looks_at_flags(source, build, kind):
    """Compiles a probe with the flags of each file, and reads what they made of it."""
    sets = {flags_of(words) for words, made in commands_of(source, build)}
    expect(sets, kind + " compiles nothing")
    for flags in sets:
        probe = os.path.join(build, "probe.cpp")
        with open(probe, "w", encoding="utf-8") as file:
            file.write(PROBE)
        subprocess.run([*flags, "-c", probe, "-o", probe + ".o"], check=True)
        symbols = readelf("-sW", probe + ".o")
        for symbol in ("__memcpy_chk", "__read_chk", "__stack_chk_fail"):
            expect(symbol in symbols, "%s: no %s by %s" % (kind, symbol, " ".join(flags)))
        looks_at_control_flow(build, probe + ".o", kind)


def looks_at_control_flow(build, made, kind):
    with open(os.path.join(build, "CMakeCache.txt"), encoding="utf-8") as file:
        known = re.search(r"^TARNWICK_HAS_fcf_protection_full:\w+=1$", file.read(), re.M)
    if known or os.uname().machine == "x86_64":
        expect("IBT, SHSTK" in readelf("-nW", made), "%s: no guarded control flow in %s" % (kind, made))


def looks_at_links(build, kind, targets):
    """The linker's command lines, of a build that is only configured."""
    lines = subprocess.run(["ninja", "-C", build, "-t", "commands", *targets], check=True, capture_output=True,
                           text=True).stdout.splitlines()
    for target in targets:
        line = next(line for line in lines if re.search(r" -o %s( |$)" % re.escape(target), line))
        for flag in ("-Wl,-z,relro", "-Wl,-z,now", "-shared" if target.endswith(".so") else "-pie"):
            expect(flag in line.split(), "%s links %s without %s" % (kind, target, flag))


def configured(source, build, kind):
    subprocess.run(["cmake", "-S", source, "-B", build, "-G", "Ninja", "-DTARNWICK_TESTS=OFF", "-DCMAKE_BUILD_TYPE=" + kind],
                   check=True, stdout=subprocess.DEVNULL)


def main():
    source, build, *binaries = sys.argv[1:]
    for index, binary in enumerate(binaries):
        looks_at_binary(binary, index == 0)
    objects = [made for words, made in commands_of(source, build) if os.path.exists(made)]
    expect(len(objects) > 100, "only %d objects were built" % len(objects))
    for made in objects:
        looks_at_control_flow(build, made, "the build")
    looks_at_flags(source, build, "the build")
    with tempfile.TemporaryDirectory() as folder:
        for kind in TYPES:
            other = os.path.join(folder, kind or "plain")
            configured(source, other, kind)
            looks_at_flags(source, other, kind or "plain")
            looks_at_links(other, kind or "plain", [os.path.basename(one) for one in binaries])
        # Without optimisation the checked calls are none, and asking for them is an error to some compilers.
        debug = os.path.join(folder, "Debug")
        configured(source, debug, "Debug")
        expect(not any("FORTIFY" in " ".join(flags_of(words)) for words, made in commands_of(source, debug)),
               "Debug asks for checked calls")
    for failure in failures[:20]:
        print(failure)
    print("%d objects, %d failures" % (len(objects), len(failures)))
    sys.exit(1 if failures else 0)


main()
