# Shared by ./run, ./test, scripts/benchmarks.sh and .ci/run, which source it: what this machine must have, and how a
# preset is built.
# Kept to what bash 3.2 knows up to the check of the system, so that macOS gets its message too.
# shellcheck shell=bash

projectRoot=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd) || exit 1
packageFile="$projectRoot/scripts/packages-debian.txt"

say()
{
    printf '==> %s\n' "$*"
}

# Ends the script with a message on standard error.
die()
{
    printf 'error: %s\n' "$*" >&2
    exit 1
}

# Prints the packages of the groups named (build, run, test, check, bench), one a line.
packagesOf()
{
    awk -v groups=" $* " '!/^#/ && NF == 2 && index(groups, " " $1 " ") { print $2 }' "$packageFile"
}

# Ends the script on a system that it cannot install on: says why, and what to install by hand.
stopWithList()
{
    local reason=$1
    shift
    {
        printf 'error: %s\n' "$reason"
        if [ "$(uname -s)" = Darwin ]; then
            cat <<'LIST'

On macOS install these first:
  - the Xcode command line tools (xcode-select --install)
  - cmake 3.25 or later, ninja, pkg-config, ccache
  - Qt 6.4 or later with Qt Quick and Qt Quick Controls
  - ICU, OpenSSL, xxHash and libplist with their headers
  - python3 with fonttools, and the SVG files of Bootstrap Icons
  - for the tests: GoogleTest with GoogleMock
LIST
        else
            printf '\nWhat is needed, by the names that Debian gives it:\n'
            packagesOf "$@" | sed 's/^/  /'
        fi
        printf '\nWhen all of it is installed, set QUILLMERE_SKIP_SETUP=1 and start this command again.\n'
    } >&2
    exit 1
}

# True on Debian 12 or later (testing and unstable carry no number) and on Ubuntu 24.04 or later.
knownSystem()
{
    [ -r /etc/os-release ] && command -v apt-get >/dev/null && command -v dpkg-query >/dev/null || return 1
    local ID='' VERSION_ID=''
    # shellcheck disable=SC1091
    . /etc/os-release
    local major=${VERSION_ID%%.*}
    case $ID in
        debian) [ "${major:-99}" -ge 12 ] ;;
        ubuntu) [ "${major:-99}" -ge 24 ] ;;
        *) return 1 ;;
    esac
}

systemName()
{
    local PRETTY_NAME=''
    # shellcheck disable=SC1091
    [ -r /etc/os-release ] && . /etc/os-release
    printf '%s' "${PRETTY_NAME:-$(uname -s)}"
}

# Prints those of the packages given that are not installed, one a line.
missingAmong()
{
    # An unknown name makes dpkg-query complain and fail; for us it is a missing package like any other.
    { dpkg-query -W -f='${db:Status-Status} ${Package}\n' "$@" 2>/dev/null || true; } |
        awk 'BEGIN { for (i = 1; i < ARGC; i++) wanted[i] = ARGV[i]; count = ARGC; ARGC = 1 }
             $1 == "installed" { have[$2] = 1 }
             END { for (i = 1; i < count; i++) if (!(wanted[i] in have)) print wanted[i] }' "$@"
}

# Sets asRoot to the words that run a command as root, or ends the script when there is no way to.
findRoot()
{
    asRoot=()
    [ "$(id -u)" -eq 0 ] && return
    if ! command -v sudo >/dev/null; then
        stopWithoutRoot 'sudo is not installed' "$@"
    fi
    asRoot=(sudo)
    sudo -n true 2>/dev/null && return
    [ -t 0 ] || stopWithoutRoot 'sudo wants a password and there is no terminal to ask on' "$@"
    say 'Installing needs root: sudo may ask for your password.'
    sudo -v || stopWithoutRoot 'sudo refused' "$@"
}

stopWithoutRoot()
{
    local reason=$1
    shift
    {
        printf 'error: packages are missing, and this user cannot install them (not root; %s).\n' "$reason"
        printf 'Have an administrator run:\n\n  apt-get update && apt-get install --no-install-recommends %s\n' "$*"
    } >&2
    exit 1
}

# Installs what is missing of the groups named. Says nothing and asks nothing of the network when all is there.
ensurePackages()
{
    [ -n "${QUILLMERE_SKIP_SETUP:-}" ] && return
    knownSystem || stopWithList "no way known to install packages on this system ($(systemName))." "$@"
    local wanted missing log
    mapfile -t wanted < <(packagesOf "$@")
    [ ${#wanted[@]} -gt 0 ] || die "no packages listed for $* in $packageFile"
    mapfile -t missing < <(missingAmong "${wanted[@]}")
    [ ${#missing[@]} -eq 0 ] && return
    findRoot "${missing[@]}"
    mkdir -p "$projectRoot/build"
    log="$projectRoot/build/setup.log"
    say 'Installing what is missing, with all that it needs (a few minutes the first time):'
    printf '%s\n' "${missing[*]}" | fold -s -w 100 | sed 's/^/      /'
    # A source of packages that does not answer need not be ours: the installation below decides.
    aptGet update >"$log" 2>&1 || say 'Some package lists could not be refreshed; going on with those at hand.'
    if ! aptGet install -y --no-install-recommends "${missing[@]}" >>"$log" 2>&1; then
        tail -n 25 "$log" >&2
        die "the packages could not be installed; the whole output is in $log"
    fi
}

aptGet()
{
    "${asRoot[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get -q -o Dpkg::Use-Pty=0 -o DPkg::Lock::Timeout=300 "$@" </dev/null
}

# Configures the preset where it was not yet, or not since the presets changed. Quiet unless it fails.
configurePreset()
{
    local preset=$1 tree="$projectRoot/build/$1"
    if [ -f "$tree/CMakeCache.txt" ] &&
        ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$projectRoot" "$tree/CMakeCache.txt"; then
        say "The project has moved since it was built: building $preset anew"
        rm -rf "$tree"
    fi
    if [ -f "$tree/build.ninja" ] && [ ! "$projectRoot/CMakePresets.json" -nt "$tree/build.ninja" ]; then
        return
    fi
    say "Configuring ($preset)"
    mkdir -p "$projectRoot/build"
    if ! (cd "$projectRoot" && cmake --preset "$preset") >"$projectRoot/build/configure-$preset.log" 2>&1; then
        cat "$projectRoot/build/configure-$preset.log" >&2
        # CMake can fail after it wrote the build file: without this the next start would take it for a good one.
        rm -f "$tree/build.ninja"
        die "configuring the preset $preset failed"
    fi
}

# Builds the targets named of a preset, or all of it. Quiet when there is nothing to do.
buildPreset()
{
    local preset=$1 target targets=()
    shift
    configurePreset "$preset"
    for target in "$@"; do
        targets+=(--target "$target")
    done
    if ninja -C "$projectRoot/build/$preset" -n "$@" 2>/dev/null | grep -q '^ninja: no work to do'; then
        return
    fi
    say "Building ($preset)"
    (cd "$projectRoot" && NINJA_STATUS='[%f/%t %es] ' cmake --build --preset "$preset" "${targets[@]}") ||
        die "the build of the preset $preset failed"
}
