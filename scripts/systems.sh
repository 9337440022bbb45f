# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Debian 12 systems in folders of their own, to be sourced: a 32-bit one in which the same source is built and tested,
# and fresh ones in which packages are tried.
#
#   system_make <folder> <architecture> <package>...   makes one, or adds what it lacks; kept from run to run
#   system_copy <folder> <new folder>                  makes a copy of one
#   system_remove <folder>
#   system_run <folder> <shared folder> <command>...   runs a command in it, in the shared folder
#
# All need root, or sudo, and say so.

system_suite=bookworm
system_mark=made-for-tessarin
as_root=()

system_needs() { # folder, what is missing
    {
        echo "tessarin: this needs a Debian 12 in $1."
        echo "tessarin: $2"
    } >&2
    return 1
}

# The mirror of the system's own package sources.
system_mirror() {
    local mirror
    # shellcheck disable=SC2016 # apt's own placeholders
    mirror=$(apt-get indextargets --format '$(CODENAME) $(COMPONENT) $(REPO_URI)' 'Identifier: Packages' 2>/dev/null |
        awk -v suite=$system_suite '$1 == suite && $2 == "main" { print $3; exit }')
    echo "${mirror:-http://deb.debian.org/debian}"
}

become_root() { # folder
    [ "$(id -u)" != 0 ] || return 0
    command -v sudo >/dev/null ||
        system_needs "$1" "making and entering it needs root: run this as root, or install sudo" || return 1
    as_root=(sudo)
}

# Removes a system, and nothing that is none. The mark goes last, so that what is cut off can be done again.
system_remove() { # folder
    if [ -e "$1" ] && [ ! -e "$1/$system_mark" ] && [ -n "$(ls -A "$1")" ]; then
        system_needs "$1" "but what is there now was not made by this program: name another folder"
        return 1
    fi
    [ -e "$1" ] || return 0
    "${as_root[@]}" find "$1" -mindepth 1 -maxdepth 1 ! -name $system_mark -exec rm -rf --one-file-system {} + &&
        "${as_root[@]}" rm -rf --one-file-system "$1"
}

# The mark comes first: whatever ends the copying, what there is then can be removed.
system_copy() { # folder, new folder
    "${as_root[@]}" mkdir -p "$2"
    "${as_root[@]}" touch "$2/$system_mark"
    "${as_root[@]}" cp -a "$1/." "$2/"
}

system_make() { # folder, architecture, packages...
    local folder=$1 architecture=$2 mirror log
    shift 2
    become_root "$folder" || return 1
    "${as_root[@]}" unshare --mount --propagation unchanged true 2>/dev/null ||
        system_needs "$folder" "entering it needs mounts of its own, which are not allowed here" || return 1
    log=$(mktemp)
    if [ ! -e "$folder/made" ]; then
        mirror=$(system_mirror)
        system_remove "$folder" || return 1
        echo "tessarin: making a Debian 12 ($architecture) in $folder" >&2
        "${as_root[@]}" mkdir -p "$folder"
        "${as_root[@]}" touch "$folder/$system_mark"
        if ! "${as_root[@]}" env http_proxy="${http_proxy:-}" https_proxy="${https_proxy:-}" \
            debootstrap --arch="$architecture" --variant=minbase --include=ca-certificates "$system_suite" "$folder" \
            "$mirror" >"$log" 2>&1; then
            tail -n 5 "$log" >&2
            system_needs "$folder" "it could not be made from $mirror: is there a network, and room for 2 GB?"
            return 1
        fi
        "${as_root[@]}" touch "$folder/made"
    fi
    # shellcheck disable=SC2016 # for the shell within
    if [ $# -gt 0 ] && ! system_run "$folder" "$project" bash -c '. scripts/packages.sh
        mapfile -t missing < <(missing_packages "$@")
        [ ${#missing[@]} = 0 ] || { apt-get -qq update && apt-get -qq install -y --no-install-recommends "${missing[@]}"; }' \
        - "$@" >"$log" 2>&1; then
        tail -n 5 "$log" >&2
        system_needs "$folder" "packages could not be installed in it: is there a network? Removing the folder starts anew"
        return 1
    fi
    rm -f "$log"
}

project=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# The mounts are the command's own and gone with it, as are all processes that it started.
system_run() { # folder, shared folder, command...
    become_root "$1" || return 1
    # shellcheck disable=SC2016 # for the shell within
    "${as_root[@]}" unshare --mount --pid --fork --kill-child bash -c '
        set -e
        system=$1 shared=$2
        shift 2
        mount --make-rprivate /
        mkdir -p "$system$shared"
        mount --bind "$shared" "$system$shared"
        mount -t proc proc "$system/proc"
        mount -t tmpfs -o mode=1777 tmpfs "$system/dev/shm"
        mount -t devpts -o newinstance,ptmxmode=0666 devpts "$system/dev/pts"
        cp /etc/resolv.conf /etc/hosts "$system/etc/"
        personality=linux64
        [ "$(chroot "$system" dpkg --print-architecture)" != i386 ] || personality=linux32
        exec chroot "$system" /usr/bin/env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 \
            DEBIAN_FRONTEND=noninteractive CI="${CI:-}" http_proxy="${http_proxy:-}" https_proxy="${https_proxy:-}" \
            setarch "$personality" \
            bash -c "cd \"\$0\" && exec \"\$@\"" "$shared" "$@"' - "$@" </dev/null
}
