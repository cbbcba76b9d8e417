#!/usr/bin/env bash
# package_test.sh BUILD: makes the Debian package of a build folder, and installs, starts and removes it in a scratch
# root.
set -euo pipefail

build=$(realpath -- "$1")
sources=$(CDPATH='' cd -- "$(dirname -- "${BASH_SOURCE[0]}")/../.." && pwd)
scratch=$(mktemp -d)
root=$scratch/root
bin=$root/usr/bin
window=
finish()
{
    [ -z "$window" ] || kill "$window" 2>/dev/null || true
    rm -rf -- "$scratch"
}
trap finish EXIT
unset DISPLAY WAYLAND_DISPLAY
export QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$scratch
cd -- "$scratch"

fail()
{
    printf 'FAILED: %s\n' "$1" >&2
    exit 1
}

# silent WHAT COMMAND...: the command succeeds and says nothing.
silent()
{
    local what=$1 said
    shift
    said=$("$@" 2>&1) || fail "$what: $said"
    [ -z "$said" ] || fail "$what: $said"
}

# same WHAT EXPECTED FOUND: two texts are alike.
same()
{
    diff <(printf '%s\n' "$2") <(printf '%s\n' "$3") >&2 || fail "$1"
}

echo "Desktop entry, metainfo, manuals, changelog"
silent "the desktop entry" desktop-file-validate "$sources/packaging/vantelos.desktop"
metainfo=$sources/packaging/net.vantelos.vantelos.metainfo.xml
appstreamcli validate --no-net --pedantic --no-color "$metainfo" >metainfo.txt ||
    fail "the metainfo: $(cat metainfo.txt)"
! grep -E '^ *[EWIP]: ' metainfo.txt >&2 || fail "the metainfo has something to improve"
for manual in vantelos vantelos-console; do
    silent "the manual of $manual" groff -man -Tutf8 -ww -z "$sources/packaging/$manual.1"
done
version=$(dpkg-parsechangelog -l "$sources/packaging/changelog" -S Version)

echo "Package"
cpack --config "$build/CPackConfig.cmake" -B "$scratch/packed" -D CPACK_DEBIAN_COMPRESSION_TYPE=gzip >cpack.txt 2>&1 ||
    fail "cpack: $(cat cpack.txt)"
package=$(echo "$scratch"/packed/*.deb)
# shellcheck disable=SC2016  (the format is dpkg's)
same "name, version and section" "vantelos $version science" \
    "$(dpkg-deb --show --showformat '${Package} ${Version} ${Section}' "$package")"
for needed in fonts-liberation libqt6widgets6 libqt6printsupport6 libqt6svg6; do
    [[ ", $(dpkg-deb --field "$package" Depends)" == *", $needed"* ]] || fail "the package does not depend on $needed"
done
! dpkg-deb --contents "$package" | grep -vE '^(drwxr-xr-x|-rw-r--r--|-rwxr-xr-x|lrwxrwxrwx) root/root ' >&2 ||
    fail "owners or rights in the package"

echo "Installation"
mkdir -p "$root"/var/lib/dpkg/{info,updates,triggers}
touch "$root"/var/lib/dpkg/{status,available}
package_manager=(dpkg --root="$root" --log=/dev/null --force-depends --force-script-chrootless)
[ "$(id -u)" -eq 0 ] || package_manager=(fakeroot "${package_manager[@]}")
"${package_manager[@]}" --install "$package" >installed.txt 2>&1 || fail "installing: $(cat installed.txt)"
expected="usr/bin/vantelos
usr/bin/vantelos-console
usr/bin/vantelos-launcher
usr/share/applications/vantelos.desktop
usr/share/doc/vantelos/LICENSE
usr/share/doc/vantelos/changelog.gz
usr/share/doc/vantelos/copyright
usr/share/icons/hicolor/scalable/apps/vantelos.svg
usr/share/man/man1/vantelos-console.1.gz
usr/share/man/man1/vantelos-launcher.1.gz
usr/share/man/man1/vantelos.1.gz
usr/share/metainfo/net.vantelos.vantelos.metainfo.xml
usr/share/vantelos/vantini.txt
$(cd -- "$sources/docs" && find . -type f -printf 'usr/share/doc/vantelos/%P\n')"
same "the installed files" "$(sort <<<"$expected")" "$(cd -- "$root" && find usr -type f | sort)"

echo "Console"
same "the version" "Vantelos $version" "$("$bin/vantelos-console" --version)"
for command in predict call drive; do
    "$bin/vantelos-console" "$command" --help | sed -nE 's/^ +(-[a-z],)?(--[a-z-]+).*/\2/p'
done | sort -u >options.txt
gzip -dc "$root/usr/share/man/man1/vantelos-console.1.gz" | groff -man -Tascii -P-cbou >manual.txt
while read -r option; do
    grep -qE -- "^ +(-[a-z], )?$option( |\$)" manual.txt ||
        fail "the manual of vantelos-console does not tell of $option"
done <options.txt

echo "Starter settings"
mkdir settings
cp "$root/usr/share/vantelos/vantini.txt" settings
printf '%s\n' "start settings" "get vantstart.Picture1" stop | "$bin/vantelos-console" drive >started.txt
same "one line, the table" 1 "$(wc -l <started.txt)"
for label in "400 m" "5000 m" "10000 m"; do
    grep -q "\" *$label  " started.txt || fail "no $label in the sample runner's table: $(cat started.txt)"
done
cmp settings/vantini.txt "$root/usr/share/vantelos/vantini.txt" || fail "the program writes the settings differently"

echo "Window"
export XDG_DATA_HOME="$scratch/a person's data" HOME=$scratch/home
data=$XDG_DATA_HOME/vantelos
"$bin/vantelos-launcher" 2>said.txt &
window=$!
for ((i = 0; i < 200; ++i)); do
    [ ! -e "$data/vantini.txt" ] || break
    sleep 0.05
done
sleep 1
kill -0 "$window" 2>/dev/null || fail "the window did not stay open: $(cat said.txt)"
same "what runs" "$bin/vantelos" "$(readlink "/proc/$window/exe")"
same "where it runs" "$data" "$(readlink "/proc/$window/cwd")"
same "who may read the folder" 700 "$(stat -c %a "$data")"
cmp "$data/vantini.txt" "$root/usr/share/vantelos/vantini.txt" || fail "the starter settings"
same "what is in the folder" vantini.txt "$(ls -A "$data")"
rm "$data/vantini.txt"
kill "$window"
wait "$window" 2>/dev/null || true
window=
cmp "$data/vantini.txt" "$root/usr/share/vantelos/vantini.txt" || fail "the settings were not saved when it was told to end"
same "what the window said" "" "$(grep -v '^This plugin does not support' said.txt || true)"

echo "No display"
status=0
QT_QPA_PLATFORM=xcb DISPLAY=:no-display "$bin/vantelos" >said.txt 2>&1 || status=$?
same "the exit status" 1 "$status"
grep -q "^Vantelos: there is no display" said.txt || fail "without a display it said: $(cat said.txt)"

echo "Later starts"
echo "#FALSE#" >"$data/vantini.txt"
ln -s "$bin/vantelos-launcher" elsewhere
same "the version, by a link" "Vantelos $version" "$(./elsewhere --version)"
same "the settings stay" "#FALSE#" "$(cat "$data/vantini.txt")"
XDG_DATA_HOME=relative "$bin/vantelos-launcher" --version >/dev/null
[ -e "$HOME/.local/share/vantelos/vantini.txt" ] || fail "no settings in ~/.local/share for a relative XDG_DATA_HOME"

echo "A folder that can't be made"
touch file
status=0
XDG_DATA_HOME=$scratch/file "$bin/vantelos-launcher" >refused.txt 2>&1 || status=$?
same "the exit status" 1 "$status"
grep -q "^Vantelos: The folder for your settings, $scratch/file/vantelos, can't be made (.*)\.$" refused.txt ||
    fail "the refusal: $(cat refused.txt)"
status=0
env -u HOME -u XDG_DATA_HOME "$bin/vantelos-launcher" >refused.txt 2>&1 || status=$?
same "the exit status without a home" 1 "$status"

echo "Removal"
"${package_manager[@]}" --purge vantelos >removed.txt 2>&1 || fail "removing: $(cat removed.txt)"
same "what is left" "" "$(find "$root/usr" -type f 2>/dev/null || true)"
same "the person's settings" "#FALSE#" "$(cat "$data/vantini.txt")"
