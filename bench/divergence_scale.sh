#!/usr/bin/env bash
# Times `ovelt dna-divergence` on generated alignments split into two populations of equal size:
# for each size, the seconds of merely opening the file (`ovelt info`, open_s), of the default
# report (div_s), of the report with the Jukes and Cantor values and their O(n^3) variances
# (var_s, with its CPU seconds cpu_s: the honest figure on a busy machine, and peak memory), and
# of the report along a sliding window of 1,000 sites with a step of 500 (sw_s).
#
#   bench/divergence_scale.sh [BUILD_DIR] [SIZES...]
# SIZES are NxL pairs (N sequences in all, N/2 in each population); the default grows the sites
# at 2 x 500 sequences and then the sequences at 100,000 sites.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
build=${1:-$here/../build/release}
shift || true
sizes=("$@")
if [ ${#sizes[@]} -eq 0 ]; then
  sizes=(1000x25000 1000x50000 1000x100000 250x100000 500x100000 2000x100000)
fi
ovelt=$build/src/ovelt
gen=$build/bench/make_alignment
work=${OVELT_BENCH_DIR:-$here/../build/bench-data}
mkdir -p "$work"
export OVELT_HOME=$work   # keep the recent-files list out of the user's directories

timed() {  # prints "wall user+sys peak_kB" of a run whose output is discarded
  /usr/bin/time -f '%e %U %S %M' -o "$work/time.txt" "$@" > /dev/null 2>&1
  awk '{ printf "%s %.2f %s\n", $1, $2 + $3, $4 }' "$work/time.txt"
}

printf '%-12s %8s %8s %8s %8s %9s %8s\n' size open_s div_s var_s cpu_s peak_MB sw_s
for size in "${sizes[@]}"; do
  n=${size%x*}; l=${size#*x}
  half=$((n / 2))
  file=$work/aln_${n}x${l}.fas
  [ -f "$file" ] || "$gen" "$n" "$l" 42 "$file"
  cat "$file" > /dev/null   # warm the page cache
  sets=(--set-def "P1=1-$half" --set-def "P2=$((half + 1))-$n")
  read -r open_s _ _ < <(timed "$ovelt" info "$file")
  read -r div_s _ _ < <(timed "$ovelt" dna-divergence "$file" "${sets[@]}")
  read -r var_s cpu_s kb < <(timed "$ovelt" dna-divergence "$file" "${sets[@]}" --variances)
  read -r sw_s _ _ < <(timed "$ovelt" dna-divergence "$file" "${sets[@]}" --sliding-window \
    --window 1000 --step 500)
  awk -v size="$size" -v os="$open_s" -v ds="$div_s" -v vs="$var_s" -v cpu="$cpu_s" \
      -v kb="$kb" -v sw="$sw_s" 'BEGIN {
    printf "%-12s %8.2f %8.2f %8.2f %8.2f %9.1f %8.2f\n", size, os, ds, vs, cpu, kb / 1024, sw }'
done
