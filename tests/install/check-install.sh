#!/usr/bin/env bash
# Installs the build into a temporary prefix and checks the install tree as a desktop and a
# packager would: every file in its place, the desktop entry and the AppStream metadata valid
# (warnings included), the manual page naming every subcommand of kartella-db, and the
# installed program, started with an empty home folder, finding its data files and creating
# its options.
# Usage: check-install.sh BUILD_DIR
set -uo pipefail
build=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix
failures=0
fail() { echo "FAIL: $*"; failures=$((failures + 1)); }

cmake --install "$build" --prefix "$prefix" >"$work/install.log" 2>&1 || { cat "$work/install.log"; fail "cmake --install"; }

for file in bin/kartella bin/kartella-db libexec/kartella/kartella-scanner share/kartella/snow.ico share/kartella/kartella.png \
    share/applications/org.kartella.Kartella.desktop share/metainfo/org.kartella.Kartella.metainfo.xml \
    share/man/man1/kartella-db.1 share/icons/hicolor/scalable/apps/kartella.svg \
    share/kartella/translations/kartella_lt.qm; do
    [[ -s $prefix/$file ]] || fail "missing $file"
done
for size in 16 22 24 32 48 64 128 256; do
    [[ -s $prefix/share/icons/hicolor/${size}x${size}/apps/kartella.png ]] || fail "missing ${size}x${size} icon"
done

if out=$(desktop-file-validate "$prefix/share/applications/org.kartella.Kartella.desktop" 2>&1) && [[ -z $out ]]; then :
else fail "desktop-file-validate: $out"; fi
out=$(appstreamcli validate --no-net "$prefix/share/metainfo/org.kartella.Kartella.metainfo.xml" 2>&1)
if [[ $? -ne 0 ]] || grep -qE '^(W|E):' <<<"$out"; then fail "appstreamcli validate: $out"; fi

# A Lithuanian desktop reads the entry and the store's summary in Lithuanian.
grep -q '^Comment\[lt\]=' "$prefix/share/applications/org.kartella.Kartella.desktop" || fail "no Lithuanian comment in the desktop entry"
grep -q '<summary xml:lang="lt">' "$prefix/share/metainfo/org.kartella.Kartella.metainfo.xml" || fail "no Lithuanian summary in the AppStream data"

# Every subcommand of the usage text has its place in the manual page.
man=$prefix/share/man/man1/kartella-db.1
home=$work/home
mkdir -p "$home"
# The tool in a clean environment: English, with no options of the user who runs the check.
tool() { env -i PATH=/usr/bin:/bin HOME="$home" LC_ALL=C.UTF-8 "$@" "$prefix/bin/kartella-db" --help; }
subcommands=$(tool | sed -nE 's/^(Usage:)? *kartella-db ([a-z][a-z-]*).*/\2/p' | sort -u)
[[ -n $subcommands ]] || fail "no subcommand in the usage text"
for command in $subcommands; do
    grep -qxF ".B kartella-db $command" "$man" || fail "the manual's synopsis lacks $command"
    grep -qxF ".B $command" "$man" || fail "the manual's command list lacks $command"
done
documented=$(sed -nE 's/^\.B kartella-db ([a-z][a-z-]*)$/\1/p' "$man" | sort -u)
[[ $documented == "$subcommands" ]] || fail "the manual names subcommands the tool lacks: $documented"

# A Lithuanian desktop reads the tool's help in Lithuanian.
help=$(tool LANGUAGE=lt LC_ALL=lt_LT.UTF-8)
[[ $help == *"nukopijuoja visą registrą"* ]] || fail "kartella-db --help is not in Lithuanian on a Lithuanian desktop"

# The installed program from an empty home folder.
env -i PATH=/usr/bin:/bin HOME="$home" QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 \
    "$prefix/bin/kartella" >"$work/out.log" 2>&1 &
pid=$!
for _ in $(seq 1 100); do
    [[ -f $home/.config/Kartella/Options.ini ]] && break
    sleep 0.2
done
sleep 1
kill "$pid" 2>/dev/null; wait "$pid" 2>/dev/null
[[ -f $home/.config/Kartella/Options.ini ]] || fail "the installed program created no options"
if grep -q "was not found" "$work/out.log"; then fail "the installed program lacks data files: $(cat "$work/out.log")"; fi

if [[ $failures -eq 0 ]]; then echo "install tree: all checks passed"; exit 0; fi
exit 1
