#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Runs the benchmarks of a build and prints the table of ratios.
#
#   run.sh <folder of the build> [option of the benchmark library]...
#
# With --benchmark_filter only those benchmarks are run, and the dialog's start is left out.
set -euo pipefail
build=$(cd "$1" && pwd)
shift
here=$(cd "$(dirname "$0")" && pwd)
export LC_ALL=C.UTF-8 XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-/tmp}

"$build/benchmarks/tessarin_bench" --benchmark_repetitions=9 --benchmark_min_time=0.1 \
    --benchmark_enable_random_interleaving=true --benchmark_report_aggregates_only=true "$@"
case " $* " in
*--benchmark_filter*) ;;
*) "$here/start/dialog_start.sh" "$build" 200 ;;
esac
