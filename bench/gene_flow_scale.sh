#!/usr/bin/env bash
# Times `ovelt gene-flow` with its permutation test on generated alignments: P populations of
# equal size as consecutive sequence sets, 1,000 replicates by default. For each size: the
# seconds of merely opening the file (`ovelt info`, open_s), of the statistics alone (flow_s),
# and with the permutation test of every pair and of all populations (test_s, with its CPU
# seconds cpu_s and peak memory).
#
#   bench/gene_flow_scale.sh [BUILD_DIR] [POPSxSEQSxSITES...]
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
build=${1:-$here/../build/release}
shift || true
sizes=("$@")
if [ ${#sizes[@]} -eq 0 ]; then
  sizes=(5x40x10000 5x40x100000 10x40x10000 5x100x10000 5x200x10000)
fi
ovelt=$build/src/ovelt
gen=$build/bench/make_alignment
work=${OVELT_BENCH_DIR:-$here/../build/bench-data}
replicates=${REPLICATES:-1000}
mkdir -p "$work"
export OVELT_HOME=$work

timed() {
  /usr/bin/time -f '%e %U %S %M' -o "$work/time.txt" "$@" > /dev/null 2>&1
  awk '{ printf "%s %.2f %s\n", $1, $2 + $3, $4 }' "$work/time.txt"
}

printf '%-14s %8s %8s %8s %8s %9s\n' size open_s flow_s test_s cpu_s peak_MB
for size in "${sizes[@]}"; do
  IFS=x read -r pops per sites <<< "$size"
  n=$((pops * per))
  file=$work/aln_${n}x${sites}.fas
  [ -f "$file" ] || "$gen" "$n" "$sites" 42 "$file"
  cat "$file" > /dev/null
  sets=()
  for ((p = 0; p < pops; ++p)); do
    sets+=(--set-def "P$((p + 1))=$((p * per + 1))-$(((p + 1) * per))")
  done
  read -r open_s _ _ < <(timed "$ovelt" info "$file")
  read -r flow_s _ _ < <(timed "$ovelt" gene-flow "$file" "${sets[@]}")
  read -r test_s cpu_s kb < <(timed "$ovelt" gene-flow "$file" "${sets[@]}" --permutation \
    --replicates "$replicates")
  awk -v size="$size" -v os="$open_s" -v fs="$flow_s" -v ts="$test_s" -v cpu="$cpu_s" \
      -v kb="$kb" 'BEGIN { printf "%-14s %8.2f %8.2f %8.2f %8.2f %9.1f\n", size, os, fs, ts, cpu, kb / 1024 }'
done
