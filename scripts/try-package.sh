#!/usr/bin/env bash
# Installs the packages that ./package made into a bare Debian, starts the program there on a page, removes it and looks at
# what is left: scripts/try-package.sh [FOLDER OF THE PACKAGES]
# Needs root, mmdebstrap and Debian's packages; where one of them is missing it tells so and ends with 77.
set -eu
top=$(cd "$(dirname "$0")/.." && pwd)
packages=${1:-$top/build/packages}

skip() {
    echo "$1" >&2
    exit 77
}
[ "$(id -u)" = 0 ] || skip "A bare system can be set up by root alone."
command -v mmdebstrap >/dev/null || skip "There is no mmdebstrap."
command -v Xvfb >/dev/null || skip "There is no virtual display."
debs=$(ls "$packages"/*.deb 2>/dev/null) || skip "There are no packages in $packages: ./package makes them."

root=$(mktemp -d)
started=()
finish() {
    for id in "${started[@]}"; do
        kill "$id" 2>/dev/null || true
        wait "$id" 2>/dev/null || true
    done
    umount "$root/proc" 2>/dev/null || true
    rm -rf --one-file-system "$root"
}
trap finish EXIT

# Its lists of packages stay for what comes next, and nothing need be safe from a loss of power.
mmdebstrap --quiet --variant=minbase --skip=cleanup/apt/lists --dpkgopt=force-unsafe-io bookworm "$root" >"$root.log" 2>&1 || {
    tail -n 5 "$root.log" >&2
    skip "A bare system could not be set up."
}
rm -f "$root.log"
mount -t proc proc "$root/proc" 2>/dev/null || true
inside() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"; }
files() { (cd "$root" && find usr etc opt -xdev \( -type f -o -type l \) | grep -i tarnwick | sort); }

mkdir "$root/packages"
cp $debs "$root/packages/"
inside sh -c 'apt-get install -y -q --no-install-recommends fonts-dejavu-core /packages/*.deb' >/dev/null
echo "Installed:" $(files | wc -l) "files."

# The display is one of this machine: its socket has no place in the file system, so it is seen in the bare system too.
mkfifo "$root/display"
Xvfb -displayfd 4 -screen 0 1024x768x24 4>"$root/display" >/dev/null 2>&1 &
started+=($!)
read -r number <"$root/display"
printf '<HTML>\n<BODY>Hello</BODY>\n</HTML>\n' >"$root/root/a.html"
mkdir -p -m 700 "$root/run/user/0"
mkdir -p "$root/root/.config/tarnwick"
printf '[Window%%20Options]\nFirstTimeAgain=1\n' >"$root/root/.config/tarnwick/The Tarnwick.ini"
inside tarnwick --version
chroot "$root" env -i PATH=/usr/bin:/bin HOME=/root LANG=C.UTF-8 DISPLAY=":$number" XDG_RUNTIME_DIR=/run/user/0 tarnwick /root/a.html &
program=$!
started+=($program)
title=
for attempt in $(seq 200); do
    kill -0 $program || { echo "The program ended at once." >&2; exit 1; }
    title=$(DISPLAY=":$number" xdotool search --name 'The Tarnwick Pro' getwindowname %@ 2>/dev/null | grep -F a.html) && break
    sleep 0.2
done
[ -n "$title" ] || { echo "No window shows the page." >&2; exit 1; }
echo "Started: $title"
kill $program
wait $program 2>/dev/null || true

inside apt-get purge -y -q tarnwick tarnwick-web >/dev/null
left=$(files)
if [ -n "$left" ]; then
    echo "Left behind:" $left >&2
    exit 1
fi
[ -f "$root/root/a.html" ] && [ -f "$root/root/.config/tarnwick/The Tarnwick.ini" ] || { echo "The user's files are gone." >&2; exit 1; }
echo "Removed: nothing is left but the user's files."
