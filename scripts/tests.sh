# shellcheck shell=bash
# Runs tests, shows those that fail, counts every single one of them. A stage calls these; `count` is of stages.sh.

cores=$(nproc)

# All tests of a preset.
run_tests() {
  local status=0
  run_core_tests "$1" timeout 1800 "build/$1/tests/tarnwick_core_tests" || status=1
  run_other_tests "$1" || status=1
  return "$status"
}

#   run_core_tests NAME COMMAND...
#
# The thousands of tests of the core, in a few processes at once: to start one for each test would take longer than
# the tests themselves.
run_core_tests() {
  local name=$1 shard log status=0 shards=()
  shift
  for ((shard = 0; shard < cores; shard++)); do
    log=build/$name-core-tests-$shard.log
    GTEST_TOTAL_SHARDS=$cores GTEST_SHARD_INDEX=$shard "$@" >"$log" 2>&1 &
    shards+=("$! $log")
  done
  for shard in "${shards[@]}"; do
    if wait "${shard%% *}"; then
      count_core_tests "${shard#* }" 0 || status=1
    else
      count_core_tests "${shard#* }" 1 || status=1
    fi
  done
  return "$status"
}

# What a process of core tests has said; the second argument tells whether it failed. One that died on the way, or
# said nothing, has failed in the test that it was in.
count_core_tests() {
  local log=$1 exit_code=$2 passed failed ended
  passed=$(sed -n 's/^\[  PASSED  \] \([0-9]*\) test.*/\1/p' "$log")
  [ -n "$passed" ] || passed=$(grep -c '^\[       OK \]' "$log") || true
  failed=$(grep -c '^\[  FAILED  \] .* ms)' "$log") || true
  ended=$(grep -c '^\[==========\] .* ran\.' "$log") || true
  if [ "$ended" -eq 0 ] || [ "$exit_code" -gt "$failed" ]; then failed=$((failed + 1)); fi
  count "$passed" "$failed"
  [ "$failed" -gt 0 ] || return 0
  tr -d '\r' <"$log" | grep -vE '^(\[(       OK |----------)\].*|Note: .*|)$' | drop_passed_tests
  return 1
}

# Leaves out the line by which a test begins, unless something follows before the next test begins.
drop_passed_tests() {
  awk '/^\[ RUN      \]/ { begun = $0; next }
    /^\[==========\]/ { begun = ""; next }
    begun != "" { print begun; begun = "" }
    { print }
    END { if (begun != "") print begun, "(and did not come to its end)" }'
}

# The other tests: windows, journeys and scripts, each as one.
run_other_tests() {
  local preset=$1 log=build/$1-tests.log status=0 line
  ctest --preset "$preset" -j"$cores" --exclude-regex '^core$' >"$log" 2>&1 || status=$?
  grep -vE '^ *(Start +[0-9]+:|[0-9]+/[0-9]+ Test +#.* Passed )' "$log" || true
  line=$(grep -E 'tests passed, [0-9]+ tests failed out of [0-9]+' "$log") || return 1
  [[ $line =~ ([0-9]+)\ tests\ failed\ out\ of\ ([0-9]+) ]]
  count $((BASH_REMATCH[2] - BASH_REMATCH[1])) "${BASH_REMATCH[1]}"
  return "$status"
}
