#!/usr/bin/env bash
# Runs the libFuzzer targets of a fuzz build, FUZZ_SECONDS each (default 60), FUZZ_JOBS of them at
# a time (default 1), at the lowest priority: with `chrt --idle` where the system has it, so that
# long runs only take the time nothing else wants. Usage: fuzz/run.sh BUILD_DIR [TARGET...]
# (default: every target).
# Fails on a crash, a leak, an input slower than 2 s or one that needs more than 1 GB; the input
# is left in BUILD_DIR/fuzz-work/TARGET/findings/. New inputs the fuzzer finds stay in
# BUILD_DIR/fuzz-work/TARGET/corpus/; the seed corpus in fuzz/corpus/ is only read.
set -uo pipefail
build=${1:?usage: fuzz/run.sh BUILD_DIR [TARGET...]}
shift
seconds=${FUZZ_SECONDS:-60}
seeds="$(cd "$(dirname "$0")" && pwd)/corpus"

targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
  for bin in "$build"/bin/fuzz_*; do targets+=("$(basename "$bin" | sed 's/^fuzz_//')"); done
fi

# Stack traces with function names, when the symbolizer of the fuzz compiler is there.
if [ -z "${ASAN_SYMBOLIZER_PATH:-}" ] && [ -x /usr/lib/llvm-19/bin/llvm-symbolizer ]; then
  export ASAN_SYMBOLIZER_PATH=/usr/lib/llvm-19/bin/llvm-symbolizer
fi

jobs=${FUZZ_JOBS:-1}
lowest=(nice -n 19)
if chrt --idle 0 true 2>/dev/null; then lowest=(chrt --idle 0 nice -n 19); fi

# libFuzzer's time limit is wall time, and a target at idle priority may wait for the processor
# past it: a timeout is replayed at normal priority, and fuzzing goes on when the input ends
# within the limit there.
replays_in_time() {
  local bin=$1 input=$2
  timeout 30 "$bin" -timeout=2 -rss_limit_mb=1024 -malloc_limit_mb=1024 "$input" >/dev/null 2>&1
}

# One target; its summary lines and verdict are printed together when it ends.
fuzz_one() {
  local t=$1 work="$build/fuzz-work/$1" status start left artifact
  local bin="$build/bin/fuzz_$t"
  mkdir -p "$work/corpus" "$work/findings"
  rm -f "$work/failed" "$work/log"
  start=$SECONDS
  left=$seconds
  while :; do
    touch "$work/started"
    "${lowest[@]}" "$bin" -max_total_time="$left" -timeout=2 -rss_limit_mb=1024 \
      -malloc_limit_mb=1024 -detect_leaks=1 -print_final_stats=1 -artifact_prefix="$work/findings/" \
      "$work/corpus" "$seeds/$t" >>"$work/log" 2>&1
    status=$?
    [ $status -eq 0 ] && break
    artifact=$(ls -t "$work/findings"/timeout-* 2>/dev/null | head -n 1)
    [ -n "$artifact" ] && [ "$artifact" -nt "$work/started" ] || break
    replays_in_time "$bin" "$artifact" || break
    mkdir -p "$work/findings/slow-only-at-idle-priority"
    mv "$artifact" "$work/findings/slow-only-at-idle-priority/"
    echo "fuzz finding: $(basename "$artifact") ends within 2 s at normal priority; fuzzing goes on" >>"$work/log"
    left=$((seconds - (SECONDS - start)))
    if [ $left -le 0 ]; then status=0; break; fi
  done
  {
    echo "== fuzz_$t, $seconds s"
    grep -E '^stat::number_of_executed_units' "$work/log" | awk '{n += $2} END {print "executions in all: " n}'
    grep -E '^(stat::number_of_executed_units|stat::peak_rss_mb|SUMMARY|fuzz finding|==[0-9]+==ERROR)' "$work/log"
    [ $status -ne 0 ] && echo "fuzz_$t FAILED (exit $status): see $work/log and $work/findings/"
  } > "$work/summary"
  cat "$work/summary"
  [ $status -eq 0 ] || touch "$work/failed"
}

for t in "${targets[@]}"; do
  while [ "$(jobs -rp | wc -l)" -ge "$jobs" ]; do wait -n || true; done
  echo "== fuzz_$t started, $seconds s"
  fuzz_one "$t" &
done
wait

failed=()
for t in "${targets[@]}"; do
  [ -e "$build/fuzz-work/$t/failed" ] && failed+=("$t")
done
if [ ${#failed[@]} -gt 0 ]; then
  echo "failed: ${failed[*]}"
  exit 1
fi
echo "all fuzz targets passed"
