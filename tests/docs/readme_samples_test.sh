#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The commands of README.md that print and install, as they stand there: on a print scheduler of the test's own, and
# into a folder of its own. What ./tessarin does is tried by itself and by those who test.
#
#   readme_samples_test.sh <build folder> <folder of the programs> <source tree>
set -euo pipefail
build=$1
programs=$2
tree=$3
work=$(mktemp -d)
export PATH=$programs:$PATH QT_QPA_PLATFORM=offscreen XDG_CONFIG_HOME=$work/config HOME=$work XDG_RUNTIME_DIR=$work
fail() {
    echo "FAILED: $*"
    exit 1
}
here=$(cd "$(dirname "$0")" && pwd)
. "$here/blocks.sh"
. "$here/../cups/private_scheduler.sh"
trap 'stop_scheduler; rm -rf "$work"' EXIT
readme=$tree/README.md

# A queue with the sample printer, and a figure through a pipe.
start_scheduler
command=$(command_line "$readme" 'lpadmin ')
(cd "$tree" && bash -c "$command") >"$work/out" 2>&1 || fail "$command: $(cat "$work/out")"
mkdir -p "$work/config/tessarin/presets"
printf '{"version":1,"printer":"queue photo","presets":[{"name":"Fine art","values":{"vornContrast":"5","vornBrightness":"3"}}]}' \
    >"$work/config/tessarin/presets/queue%20photo.json"
cd "$work"
printf '%%!PS\n100 100 moveto 200 200 lineto stroke showpage\n' >figure.ps
command=$(command_line "$readme" 'ps2pdf ')
bash -o pipefail -c "$command" >out 2>&1 || fail "$command: $(cat out)"
wait_for_job 1
options=$(grep -F '[Job 1] argv[5]=' "$scheduler/Log/error_log" | tail -n 1)
[[ $options == *vornBrightness=-5* && $options == *vornContrast=5* ]] || fail "the job's options: $options"

# The packages that are installed are those for users, and each is there.
mkdir build-package
while read -r package; do
    touch "build-package/${package}_1.0_amd64.deb" "build-package/${package}-dbgsym_1.0_amd64.deb"
done < <(sed -n 's/^Package: //p' "$tree/debian/control")
command=$(command_line "$readme" 'sudo apt install')
named=$(bash -c "echo ${command#*apt install }")
[ "$named" = "./build-package/tessarin-panel_1.0_amd64.deb ./build-package/tessarin-print_1.0_amd64.deb" ] ||
    fail "$command installs $named"

# Into a prefix, which is moved as a whole.
command=$(command_line "$readme" 'sudo cmake --install')
[ "$command" = "sudo cmake --install build" ] || fail "another installation: $command"
cmake --install "$build" --prefix "$work/prefix" >out 2>&1 || fail "$command: $(cat out)"
mv prefix moved
for path in bin/tessarin-print bin/tessarin-replay bin/tessarin-inkdata 'lib/*tessarin/TessarinPDE.bundle/libTessarinPDE.so' \
    share/tessarin/tessarin-sample.ppd share/man/man1/tessarin-print.1 share/man/de/man1/tessarin-print.1; do
    [ -n "$(compgen -G "moved/$path" || compgen -G "moved/${path/\*/*/}")" ] || fail "not installed: $path"
done
moved/bin/tessarin-print --sample --log none --summary >summary 2>err || fail "the installed program: $(cat err)"
[ "$(wc -l <summary)" = 31 ] || fail "the installed program: $(cat summary err)"
echo "passed"
