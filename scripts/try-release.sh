#!/usr/bin/env bash
# Tries a release of Debian as a bare machine would: makes a root of it in a temporary folder, copies a clean clone of
# the last commit in, runs ./run and ./test there, and takes everything away again. A warning counts as a failure.
#
#   scripts/try-release.sh SUITE        bookworm, trixie
#
# Needs root, debootstrap, and a mirror of Debian among this machine's own sources of packages; without one it ends
# with 77.
set -euo pipefail

# shellcheck source=scripts/setup.sh
. "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

noMirror=77
secondsUp=10 # for which the program must stay up
scratch=''   # the folder that this run has made
child=''     # the process group at work

# Prints the first mirror of Debian that this machine takes packages from. Lists that were never fetched don't tell whose
# they are; their address does.
findMirror()
{
    command -v apt-get >/dev/null || return 0
    # shellcheck disable=SC2016 # apt's own variables
    apt-get indextargets --format '$(REPO_URI)|$(COMPONENT)|$(ORIGIN)|$(LABEL)' 'Created-By: Packages' 2>/dev/null |
        awk -F '|' '$1 ~ /^(https?|ftp|file):/ && $2 == "main" && !found &&
            (($3 == "Debian" && $4 == "Debian") || ($3 == "" && $1 ~ /\/debian\/?$/)) { print $1; found = 1 }'
}

# What is mounted in the root belongs to the processes inside and goes with them. Should anything be left all the same,
# nothing is removed, since it may be this machine's own.
removeAll()
{
    local status=$? try
    trap - EXIT
    trap '' INT TERM HUP
    if [ -n "$child" ]; then
        kill -KILL -- "-$child" 2>/dev/null || true
        wait "$child" 2>/dev/null || true
    fi
    if [ -n "$scratch" ] && grep -qF " $scratch/" /proc/self/mountinfo; then
        printf 'error: something is still mounted below %s, so it stays\n' "$scratch" >&2
    elif [ -n "$scratch" ]; then
        # The last processes may still be on their way out.
        for try in 1 2 3 4 5; do
            rm -rf --one-file-system "$scratch" && break
            sleep "$try"
        done
    fi
    exit "$status"
}

# Runs a command with mounts and processes of its own, which end with it, and waits for it. It has a process group of its
# own too, so that removeAll reaches it.
runApart()
{
    local status=0
    set -m
    unshare --mount --pid --fork --kill-child --mount-proc --propagation private "$@" </dev/null &
    child=$!
    set +m
    wait "$child" || status=$?
    child=''
    return "$status"
}

# Runs a command in the root, with nothing of this machine's environment but the way to the network.
runInside()
{
    local variable kept=()
    for variable in http_proxy https_proxy ftp_proxy no_proxy HTTP_PROXY HTTPS_PROXY NO_PROXY; do
        if [ -n "${!variable:-}" ]; then
            kept+=("$variable=${!variable}")
        fi
    done
    # shellcheck disable=SC2016 # for the shell inside
    runApart bash -euc '
        root=$1
        shift
        mount -t proc proc "$root/proc"
        mount --rbind /sys "$root/sys"
        mount --rbind /dev "$root/dev"
        exec chroot "$root" env -i "$@"' inside "$scratch/root" \
        HOME=/root LANG=C.UTF-8 PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin "${kept[@]}" "$@"
}

# Copies what the network takes: names, and how this machine's apt reaches its sources.
copyNetworkSettings()
{
    local root=$scratch/root name ways='(Proxy|Verify-Peer|Verify-Host|CaInfo|Check-Valid-Until|Check-Date|Retries|Timeout)'
    cp -L /etc/resolv.conf /etc/hosts "$root/etc/"
    apt-config dump | grep -E "^Acquire::(.*::)?$ways" >"$root/etc/apt/apt.conf.d/90network" || true
    for name in /etc/apt/auth.conf /etc/apt/auth.conf.d /usr/local/share/ca-certificates; do
        if [ -e "$name" ]; then
            mkdir -p "$root${name%/*}"
            cp -aT "$name" "$root$name"
        fi
    done
}

makeRoot()
{
    local suite=$1 mirror=$2 proxy=''
    eval "$(apt-config shell proxy Acquire::http::Proxy)"
    if [ -n "$proxy" ] && [ "$proxy" != DIRECT ]; then
        export http_proxy=${http_proxy:-$proxy}
    fi
    runApart debootstrap --variant=minbase "$suite" "$scratch/root" "$mirror" >"$scratch/debootstrap" 2>&1 || {
        tail -n 25 "$scratch/debootstrap" >&2
        die "debootstrap could not make a root of $suite"
    }
    copyNetworkSettings
    git clone --quiet --no-hardlinks "$projectRoot" "$scratch/root/root/project"
}

# Starts ./run without a display and waits for the program that it makes, which must stay up for a while.
tryRun()
{
    # shellcheck disable=SC2016 # for the shell inside
    runInside bash -euc '
        isUp() { [ "$(readlink "/proc/$run/exe")" = "$PWD/build/release/src/quillmere" ]; }
        cd /root/project
        mkdir -m 700 /run/session
        XDG_RUNTIME_DIR=/run/session QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software ./run &
        run=$!
        until isUp; do
            kill -0 "$run"
            sleep 1
        done
        sleep "$1"
        isUp
        kill "$run"
        wait "$run" || true' run "$secondsUp" >"$scratch/run" 2>&1
}

tryTest()
{
    runInside bash -c 'cd /root/project && ./test' >"$scratch/test" 2>&1
}

# Prints what the commands complained of. All that ./run prints beside its own notes and the build's steps is the program's.
printWarnings()
{
    local project=$scratch/root/root/project
    grep -iE -A 6 'warning' "$project"/build/configure-*.log || true
    grep -E -A 6 'warning:' "$scratch/test" || true
    grep -vE '^(==> |      |\[[0-9]+/|ninja: )' "$scratch/run" || true
}

try()
{
    local name=$1 began=$SECONDS
    say "$name"
    "$2" || {
        tail -n 60 "$scratch/${name#./}" >&2
        die "$name failed after $((SECONDS - began)) s"
    }
    say "$name: passed in $((SECONDS - began)) s"
}

[ $# -eq 1 ] || die 'usage: scripts/try-release.sh SUITE'
suite=$1
[ "$(id -u)" -eq 0 ] || die 'making a root takes an administrator'
command -v debootstrap >/dev/null || die 'debootstrap is not installed'
mirror=$(findMirror)
if [ -z "$mirror" ]; then
    printf 'This machine takes its packages from no mirror of Debian.\n' >&2
    exit "$noMirror"
fi

trap removeAll EXIT
trap 'exit 129' HUP
trap 'exit 130' INT
trap 'exit 143' TERM
scratch=$(mktemp -d)
say "Making a root of $suite"
makeRoot "$suite" "$mirror"
try ./run tryRun
try ./test tryTest
warnings=$(printWarnings)
if [ -n "$warnings" ]; then
    printf '%s\n' "$warnings" >&2
    die "$suite warns"
fi
say "$suite: everything passed in $SECONDS s"
