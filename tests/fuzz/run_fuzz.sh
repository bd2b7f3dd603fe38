#!/usr/bin/env bash
# Runs the parse fuzzer for a while on the generated corpus.
#   tests/fuzz/run_fuzz.sh BUILD_DIR [SECONDS] [extra libFuzzer flags...]
# Findings land in BUILD_DIR/fuzz_artifacts; the growing corpus in BUILD_DIR/fuzz_work.
set -euo pipefail
build=${1:?build dir of a -DNLPDATE_FUZZ=ON configuration}
seconds=${2:-300}
shift $(( $# < 2 ? $# : 2 ))
mkdir -p "$build/fuzz_work" "$build/fuzz_artifacts"
export TZ=UTC
exec "$build/bin/fuzz_parse" "$build/fuzz_work" "$build/fuzz_corpus" \
  -dict="$build/fuzz_parse.dict" -max_len=600 -timeout=5 -rss_limit_mb=2048 \
  -report_slow_units=1 -max_total_time="$seconds" -print_final_stats=1 \
  -artifact_prefix="$build/fuzz_artifacts/" "$@"
