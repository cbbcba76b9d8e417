# Sourced by run, test and bench. Sets root, the folder of this copy of the sources.

root=$(CDPATH= cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)

fail()
{
    printf '%s\n' "$1" >&2
    exit 1
}

# Installs those Debian packages of the list that are missing; changes nothing when all are there.
install_packages()
{
    local list="$root/packaging/debian-packages.txt" wanted missing as_root=()
    command -v dpkg-query >/dev/null ||
        fail "Vantelos is built on Debian; elsewhere, install what packaging/debian-packages.txt names and use CMake."
    wanted=$(sed 's/#.*//' "$list" | xargs -n 1 | sort -u)
    # shellcheck disable=SC2086,SC2016  (one argument a package; the format is dpkg's)
    missing=$(comm -23 <(echo "$wanted") \
        <(dpkg-query -W -f '${db:Status-Status} ${Package}\n' $wanted 2>/dev/null | sed -n 's/^installed //p' | sort -u))
    [ -n "$missing" ] || return 0
    missing=$(echo "$missing" | xargs)

    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null ||
            fail "These Debian packages are missing, and without sudo only root can install them: $missing"
        as_root=(sudo)
        [ -t 0 ] || as_root+=(-n)
    fi
    echo "Installing Debian packages: $missing" >&2
    local log
    log=$(mktemp)
    # shellcheck disable=SC2086  (one argument a package)
    if ! { "${as_root[@]}" apt-get -o DPkg::Lock::Timeout=120 update &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=120 \
            install --yes --no-install-recommends $missing; } >"$log" 2>&1 </dev/null; then
        tail -n 5 "$log" >&2
        rm -f "$log"
        fail "These Debian packages could not be installed (no network, or no right to?): $missing"
    fi
    rm -f "$log"
}

# build PRESET TARGET...: a build folder that came from elsewhere, or is older than the presets, is set up afresh.
build()
{
    local preset="$1" folder="$root/build/$1"
    shift
    cd -- "$root"
    export CCACHE_BASEDIR="$root" CCACHE_NOHASHDIR=1   # so that another copy of the sources compiles what differs
    if [ -f "$folder/CMakeCache.txt" ] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt"; then
        rm -rf -- "$folder"
    fi
    if [ ! -f "$folder/build.ninja" ] || [ CMakePresets.json -nt "$folder/build.ninja" ]; then
        cmake --preset "$preset" || return
    fi
    cmake --build --preset "$preset" --target "$@" -- -k 0
}

# quietly WHAT COMMAND...: shows what the command printed only when it fails, and then stops.
quietly()
{
    local what="$1" log
    shift
    log=$(mktemp)
    if ! ("$@") >"$log" 2>&1 </dev/null; then
        cat "$log" >&2
        rm -f "$log"
        fail "The $what failed; what it printed stands above."
    fi
    rm -f "$log"
}
