# shellcheck shell=bash
# The frame of a check: a stage is one function, run by its name; all stages run, even after one that failed.
#
#   run_stage NAME FUNCTION    runs the function with errexit in a subshell
#   count PASSED FAILED        called inside of a stage that knows how many things it checked; others count as one
#   close_stages               the table with the seconds of each, the closing line of counts; fails when a stage did

stage_table=()
total_passed=0
total_failed=0
count_file=$(mktemp)
trap 'rm -f "$count_file"' EXIT

count() { printf '%s %s\n' "$1" "$2" >>"$count_file"; }

run_stage() {
  local name=$1 function=$2 status passed=0 failed=0 p f began=$SECONDS
  printf '== %s\n' "$name"
  : >"$count_file"
  # Not inside a condition: the shell would ignore errexit in the function then.
  set +e
  (
    set -e
    "$function"
  ) 2>&1
  status=$?
  set -e

  while read -r p f; do
    passed=$((passed + p))
    failed=$((failed + f))
  done <"$count_file"
  if [ "$status" -ne 0 ]; then
    [ "$failed" -gt 0 ] || failed=1
  elif [ ! -s "$count_file" ]; then
    passed=1
  fi
  total_passed=$((total_passed + passed))
  total_failed=$((total_failed + failed))
  local verdict=ok
  [ "$failed" -eq 0 ] || verdict=FAILED
  stage_table+=("$(printf '  %-28s %-7s %6d passed %4d failed %6d s' "$name" "$verdict" "$passed" "$failed" \
    $((SECONDS - began)))")
}

close_stages() {
  if [ ${#stage_table[@]} -gt 1 ]; then
    printf '== summary\n'
    printf '%s\n' "${stage_table[@]}"
  fi
  printf '%d passed, %d failed\n' "$total_passed" "$total_failed"
  [ "$total_failed" -eq 0 ]
}
