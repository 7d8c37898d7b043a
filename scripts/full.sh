# shellcheck shell=bash
# The stages that ./check --full has beyond ./check. A stage is one function; run_full_stages is the list.

second_designs=${SECOND_DESIGNS:-1000} # of each of two seeds
fuzz_seconds=${FUZZ_SECONDS:-20} # for each target

run_full_stages() {
  run_stage "format" stage_format
  run_stage "shell scripts" stage_shell_scripts
  run_stage "static checks" stage_static_checks
  run_stage "catalogue of texts" stage_catalogue
  run_stage "tests under sanitizers" stage_sanitizers
  run_stage "for Windows" stage_windows
  run_stage "fuzzing" stage_fuzzing
  run_stage "second computation" stage_second_computation
  run_stage "drawings in other readers" stage_drawings
  run_stage "benchmarks run" stage_benchmarks
  run_stage "package" stage_package
}

stage_format() {
  local log=build/clang-format.log sources wrong=()
  mapfile -t sources < <(find src tests bench fuzz -name '*.h' -o -name '*.cpp' | sort)
  if ! clang-format-14 --dry-run -Werror "${sources[@]}" 2>"$log"; then
    mapfile -t wrong < <(sed -n 's/^\(.*\):[0-9]*:[0-9]*: error: code should be clang-formatted.*/\1/p' "$log" | sort -u)
    [ ${#wrong[@]} -gt 0 ] || {
      cat "$log"
      return 1
    }
    printf '%s: not formatted; clang-format-14 -i makes it so\n' "${wrong[@]}"
  fi
  count $((${#sources[@]} - ${#wrong[@]})) ${#wrong[@]}
}

stage_shell_scripts() {
  shellcheck --external-sources run check .ci/run scripts/*.sh
}

stage_static_checks() {
  configure_preset static-checks
  /usr/bin/python3 -B scripts/static_checks.py build/static-checks
}

# What a translator starts from is what the windows say.
stage_catalogue() {
  /usr/bin/python3 -B scripts/catalogue.py --check
}

stage_sanitizers() {
  build_preset asan
  export ASAN_SYMBOLIZER_PATH=/usr/lib/llvm-14/bin/llvm-symbolizer # findings tell their lines
  run_tests asan
}

# Core, command line tool and their tests made for Windows, the store of settings in the registry included, and run
# here. The worked bands show that the last digit is the same.
stage_windows() {
  build_preset windows --target tarnwick-cli tarnwick_core_tests
  local status=0 tool=build/windows/tarnwick-cli
  under_wine wine wineboot --init # before several programs find no Windows at once
  run_core_tests windows under_wine timeout 900 wine build/windows/tests/tarnwick_core_tests.exe || status=$?
  printf '#!/bin/sh\nexec wine "%s" "$@"\n' "$PWD/build/windows/src/tarnwick-cli.exe" >$tool
  chmod +x $tool
  under_wine env TARNWICK_CLI=$tool /usr/bin/python3 -B tests/worked_bands_test.py
  count "$(wc -l <tests/data/bands.jsonl)" 0
  return "$status"
}

# Runs a command that runs programs for Windows: on a Windows of its own in build/, with no screen, and without a
# way to the user's folders.
under_wine() {
  mkdir -p build/wine-home
  env -u DISPLAY -u WAYLAND_DISPLAY HOME="$PWD/build/wine-home" WINEPREFIX="$PWD/build/wine" WINEDEBUG=-all \
    WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d" "$@"
}

stage_fuzzing() {
  build_preset fuzz
  local source free
  free=$(nproc)
  for source in fuzz/*_fuzz.cpp; do
    if [ "$free" -gt 0 ]; then free=$((free - 1)); else wait -n; fi
    fuzz "$(basename "$source" _fuzz.cpp)" &
  done
  wait
}

# Fresh finds go to a folder of their own, so that every run starts from the seeds alone.
fuzz() {
  local name=$1 work=build/fuzz-work/$1
  local log=$work/log
  rm -rf "$work"
  mkdir -p "$work/corpus"
  if "build/fuzz/fuzz/${name}_fuzz" -max_total_time="$fuzz_seconds" -print_final_stats=1 \
    -artifact_prefix="$work/" "$work/corpus" "fuzz/corpus/$name" >"$log" 2>&1; then
    say "$name: $(sed -n 's/^stat::number_of_executed_units: *//p' "$log") inputs"
    count 1 0
  else
    tail -n 60 "$log"
    count 0 1
  fi
}

# Random designs, plausible and degenerate, worked out by the program and by the Python computation: equal to the last digit.
stage_second_computation() {
  build_preset bench --target tarnwick-cli # as users get it, and the benchmarks will want it too
  local work=build/second-computation seed
  mkdir -p "$work"
  for seed in 1 2; do
    random_worked_bands "$seed" >"$work/$seed.jsonl" &
  done
  wait
  for seed in 1 2; do
    # A computation that died has left fewer lines than were asked for.
    [ "$(wc -l <"$work/$seed.jsonl")" -eq "$second_designs" ]
    TARNWICK_CLI=build/bench/src/tarnwick-cli /usr/bin/python3 -B tests/worked_bands_test.py "$work/$seed.jsonl"
    count "$second_designs" 0
  done
}

random_worked_bands() {
  /usr/bin/python3 -B tests/reference/random_designs.py "$1" "$second_designs" |
    /usr/bin/python3 -B tests/reference/tarnwick_reference.py --worked
}

stage_drawings() {
  build_preset bench --target tarnwick-cli
  build_preset dev --target tarnwick_dxf_reader
  local work=build/drawings designs=(samples/*.json)
  rm -rf "$work"
  mkdir -p "$work"
  /usr/bin/python3 -B scripts/validate_dxf.py --cli build/bench/src/tarnwick-cli \
    --reader build/dev/tests/tarnwick_dxf_reader --out-dir "$work" "${designs[@]}"
  count ${#designs[@]} 0
}

# Numbers are for a quiet machine and for README.md; here it only has to run.
stage_benchmarks() {
  build_preset bench
  build/bench/bench/tarnwick_bench --benchmark_min_time=0.01
  build/bench/src/tarnwick-cli dxf samples/round-back.json -o build/written-by-scripts.dxf --defaults
  /usr/bin/python3 -B bench/dxf_scripts.py build/written-by-scripts.dxf
  build/bench/bench/tarnwick_qt_bench --benchmark_min_time=0.01
  QT_QPA_PLATFORM=offscreen /usr/bin/python3 -B bench/start_bench.py build/bench/bench/tarnwick_start_window
}
