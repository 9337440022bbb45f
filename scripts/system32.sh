# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# A 32-bit x86 Debian 12 in a folder of its own, to be sourced: the same source is built and tested there.
#
#   system32_make <package>...      makes it, or adds what it lacks; kept from run to run
#   system32_run <command>...       runs a command in it, in the project's folder, which it shares
#
# Both need root, or sudo. TESSARIN_I386 names another folder than the one below.

system32=${TESSARIN_I386:-/var/cache/tessarin/i386}
system32_suite=bookworm
as_root=()

system32_say_how() { # what is missing
    {
        echo "tessarin: the 32-bit tests run in an i386 Debian 12 in $system32."
        echo "tessarin: $1"
    } >&2
    return 1
}

# The mirror of the system's own package sources.
system32_mirror() {
    local mirror
    # shellcheck disable=SC2016 # apt's own placeholders
    mirror=$(apt-get indextargets --format '$(RELEASE) $(COMPONENT) $(REPO_URI)' 'Identifier: Packages' 2>/dev/null |
        awk -v suite=$system32_suite '$1 == suite && $2 == "main" { print $3; exit }')
    echo "${mirror:-http://deb.debian.org/debian}"
}

system32_become_root() {
    [ "$(id -u)" != 0 ] || return 0
    command -v sudo >/dev/null ||
        system32_say_how "making and entering it needs root: run this as root, or install sudo" || return 1
    as_root=(sudo)
}

system32_make() { # packages
    local mirror log
    system32_become_root || return 1
    log=$(mktemp)
    if [ ! -e "$system32/made" ]; then
        mirror=$(system32_mirror)
        echo "tessarin: making an i386 system in $system32" >&2
        "${as_root[@]}" rm -rf --one-file-system "$system32"
        if ! "${as_root[@]}" debootstrap --arch=i386 --variant=minbase --include=ca-certificates "$system32_suite" \
            "$system32" "$mirror" >"$log" 2>&1; then
            tail -n 5 "$log" >&2
            system32_say_how "it could not be made from $mirror: is there a network, and room for 2 GB?"
            return 1
        fi
        "${as_root[@]}" touch "$system32/made"
    fi
    # shellcheck disable=SC2016 # for the shell within
    if ! system32_run bash -c '. scripts/packages.sh
        mapfile -t missing < <(missing_packages "$@")
        [ ${#missing[@]} = 0 ] || { apt-get -qq update && apt-get -qq install -y --no-install-recommends "${missing[@]}"; }' \
        - "$@" >"$log" 2>&1; then
        tail -n 5 "$log" >&2
        system32_say_how "packages could not be installed in it: is there a network? Removing the folder starts anew"
        return 1
    fi
    rm -f "$log"
}

# The mounts are the command's own and gone with it, as are all processes that it started.
system32_run() { # command
    local project
    project=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
    system32_become_root || return 1
    # shellcheck disable=SC2016 # for the shell within
    "${as_root[@]}" unshare --mount --pid --fork --kill-child bash -c '
        set -e
        system=$1 project=$2
        shift 2
        mount --make-rprivate /
        mkdir -p "$system$project"
        mount --bind "$project" "$system$project"
        mount -t proc proc "$system/proc"
        mount -t tmpfs -o mode=1777 tmpfs "$system/dev/shm"
        mount -t devpts -o newinstance,ptmxmode=0666 devpts "$system/dev/pts"
        cp /etc/resolv.conf /etc/hosts "$system/etc/"
        exec chroot "$system" /usr/bin/env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 \
            DEBIAN_FRONTEND=noninteractive CI="${CI:-}" setarch linux32 \
            bash -c "cd \"\$0\" && exec \"\$@\"" "$project" "$@"' - "$system32" "$project" "$@" </dev/null
}
