#!/usr/bin/env bash
# Times `ovelt info` on generated FASTA alignments of growing size and prints, for each size,
# the wall-clock seconds, the CPU seconds (user + system: the honest figure on a busy machine),
# the read speed in MB per CPU second, the speed of merely reading the file's bytes (cat), and
# the peak memory with its ratio to the number of cells. Then the wall-clock seconds and peak
# memory of `ovelt dna-polymorphism` with the sampling variance of Pi and Pi(JC) on (pol_s,
# pol_MB), and the seconds of its sliding window (win_s: 100 sites, step 25, the step growing on
# long files to stay below the limit of windows).
#
#   bench/scale.sh [BUILD_DIR] [SIZES...]
# SIZES are NxL pairs; the default runs 100x10000 up to 2000x1000000 (needs ~4 GB of disk).
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
build=${1:-$here/../build/release}
shift || true
sizes=("$@")
if [ ${#sizes[@]} -eq 0 ]; then
  sizes=(100x10000 100x100000 1000x100000 100x1000000 500x1000000 1000x1000000 2000x1000000)
fi
ovelt=$build/src/ovelt
gen=$build/bench/make_alignment
work=${OVELT_BENCH_DIR:-$here/../build/bench-data}
mkdir -p "$work"
export OVELT_HOME=$work   # keep the recent-files list out of the user's directories

printf '%-14s %10s %9s %9s %9s %9s %10s %9s %9s %10s %9s\n' size MB seconds cpu_s MB/cpu_s \
  cat_MB/s peak_MB B/cell pol_s pol_MB win_s
for size in "${sizes[@]}"; do
  n=${size%x*}; l=${size#*x}
  file=$work/aln_${n}x${l}.fas
  [ -f "$file" ] || "$gen" "$n" "$l" 42 "$file"
  bytes=$(stat -c %s "$file")
  cat "$file" > /dev/null   # warm the page cache for both timings
  t0=$(date +%s.%N); cat "$file" > /dev/null; t1=$(date +%s.%N)
  /usr/bin/time -f '%e %U %S %M' -o "$work/time.txt" "$ovelt" info "$file" > /dev/null
  read -r secs user sys kb < "$work/time.txt"
  /usr/bin/time -f '%e %M' -o "$work/time.txt" "$ovelt" dna-polymorphism "$file" --variance --jc \
    > /dev/null
  read -r pol_secs pol_kb < "$work/time.txt"
  step=$(( l / 16000 + 1 )); [ "$step" -lt 25 ] && step=25
  window=$(( step < 100 ? 100 : step ))
  /usr/bin/time -f '%e %M' -o "$work/time.txt" "$ovelt" dna-polymorphism "$file" \
    --sliding-window --window "$window" --step "$step" > /dev/null
  read -r win_secs _ < "$work/time.txt"
  awk -v size="$size" -v bytes="$bytes" -v secs="$secs" -v user="$user" -v sys="$sys" \
      -v kb="$kb" -v c0="$t0" -v c1="$t1" -v cells="$((n * l))" -v ps="$pol_secs" \
      -v pkb="$pol_kb" -v ws="$win_secs" 'BEGIN {
    mb = bytes / 1e6; cat = c1 - c0; if (cat <= 0) cat = 1e-6; cpu = user + sys;
    if (cpu <= 0) cpu = 0.01;
    printf "%-14s %10.1f %9.2f %9.2f %9.1f %9.1f %10.1f %9.2f %9.2f %10.1f %9.2f\n", size, mb,
           secs, cpu, mb / cpu, mb / cat, kb / 1024, kb * 1024 / cells, ps, pkb / 1024, ws }'
done
