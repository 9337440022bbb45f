#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The samples of the documents are run, and give what the documents say.
#
#   samples_test.sh <folder of the programs> <source tree> <bundle>
set -euo pipefail
programs=$1
tree=$2
bundle=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export PATH=$programs:$PATH QT_QPA_PLATFORM=offscreen XDG_CONFIG_HOME=$work/config XDG_RUNTIME_DIR=$work
fail() {
    echo "FAILED: $*"
    exit 1
}

. "$(dirname "$0")/blocks.sh"

# The host: what is printed is what is compiled, and it runs.
diff <(block "$tree/docs/hosting.md" 1) <(sed -n '4,$p' "$tree/examples/minimal_host.cpp") ||
    fail "docs/hosting.md and examples/minimal_host.cpp differ"
minimal-host "$bundle" "$tree/examples/tessarin-sample.ppd" --save >"$work/options" 2>"$work/errors" ||
    fail "the minimal host: $(cat "$work/errors")"
[ "$(grep -cE '^vorn[A-Za-z]+=.' "$work/options")" = 31 ] || fail "the minimal host gave: $(cat "$work/options")"
minimal-host "$work" "$tree/examples/tessarin-sample.ppd" --save 2>"$work/errors" && fail "a host without a panel"
grep -q 'not found' "$work/errors" || fail "no reason: $(cat "$work/errors")"

# The counters: a text, its table, and the lines for the scheduler.
guide=$tree/docs/driver-guide.md
cd "$work"
block "$guide" 1 >photo.ink
bash -c "$(block "$guide" 2)" >table || fail "the table of counters"
diff table <(block "$guide" 3) || fail "another table of counters"
bash -c "$(block "$guide" 4)" 2>lines || fail "the counters' lines"
diff lines <(block "$guide" 5) || fail "other lines of counters"

# The filter.
block "$guide" 6 >filter
echo 'a page' >page
sh filter 1 user title 1 'vornBrightness=0 vornMediaType=PhotoPearl07' page >out 2>err || fail "the filter"
diff page out && grep -qx 'INFO: printing on PhotoPearl07' err || fail "the filter said: $(cat err)"

# What a job would get.
echo 'a text' >a.txt
bash -c "$(block "$guide" 7)" >options || fail "the job's options"
grep -qx 'vornMediaType=PhotoPearl07' options || fail "the job's options: $(cat options)"

# The pop-up is a PPD's, and all that it needs. (A medium whose key ends in 0 is shown with a mark.)
{
    printf '*PPD-Adobe: "4.3"\n'
    indented "$guide" 1
} >popup.ppd
for choice in "" PlainPaper00 ColorChart02; do
    tessarin-print --ppd popup.ppd --log none --summary ${choice:+-o "vornMediaType=$choice"} 2>err |
        grep '^Media Type: ' || fail "the pop-up's PPD: $(cat err)"
done >media
diff media - <<'END' || fail "the pop-up has other choices"
Media Type: Photo Pearl 290 g
Media Type: Plain Paper 80 g *
Media Type: Color Chart Paper (no color data)
END

# The session: its command stands in the text.
replay=$tree/docs/replay.md
ln -s "$tree/examples" examples
indented "$replay" 2 >script
command=$(sed -n 's/^and `\(tessarin-replay .*\)` answers:$/\1/p' "$replay")
bash -c "${command:?}" >trace || fail "$command"
diff trace <(indented "$replay" 3) || fail "another answer to the session"

# The commands that documents show exist.
for document in "$tree"/README.md "$tree"/CONTRIBUTING.md "$tree"/docs/*.md; do
    while read -r command; do
        grep -qE "^  \./tessarin $command( |\$)" <("$tree/tessarin" help) || fail "$document: ./tessarin $command"
    done < <(grep -oE '^    \./tessarin [a-z]+' "$document" | sed 's/.* //' | sort -u)
    while read -r program; do
        [ -x "$programs/../$program" ] || fail "$document: build/$program"
    done < <(grep -oE '^    (TESSARIN[A-Z_]+=[0-9]+ )?\./build/(bin|tests)/[a-z_-]+' "$document" | sed 's|.*build/||' | sort -u)
done
echo "passed"
