#!/usr/bin/env bash
# Times `ovelt synonymous` on generated coding alignments (every site coding, standard code):
# for each size, the seconds of merely opening the file (`ovelt info`, open_s), of the whole
# command without the per-pair table (the too-big question answered No: syn_s), and with its
# n(n - 1)/2 rows streamed to a file (file_s), the CPU seconds of that last run (cpu_s: the honest
# figure on a busy machine), its peak memory and the size of the table file.
#
#   bench/synonymous_scale.sh [BUILD_DIR] [SIZES...]
# SIZES are NxL pairs (L a multiple of 3); the default grows the sites at 1,000 sequences and then
# the sequences at 30,000 sites.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
build=${1:-$here/../build/release}
shift || true
sizes=("$@")
if [ ${#sizes[@]} -eq 0 ]; then
  sizes=(1000x10002 1000x30000 1000x60000 250x30000 500x30000 2000x30000)
fi
ovelt=$build/src/ovelt
gen=$build/bench/make_alignment
work=${OVELT_BENCH_DIR:-$here/../build/bench-data}
mkdir -p "$work"
export OVELT_HOME=$work   # keep the recent-files list out of the user's directories

printf '%-12s %9s %8s %8s %8s %8s %9s %9s\n' size rows open_s syn_s file_s cpu_s peak_MB table_MB
for size in "${sizes[@]}"; do
  n=${size%x*}; l=${size#*x}
  file=$work/aln_${n}x${l}.fas
  [ -f "$file" ] || "$gen" "$n" "$l" 42 "$file"
  cat "$file" > /dev/null   # warm the page cache
  /usr/bin/time -f '%e' -o "$work/time.txt" "$ovelt" info "$file" > /dev/null
  read -r open_secs < "$work/time.txt"
  # Without --yes the coding question would be answered Cancel; with it and no --grid the table
  # question gets Yes but no file, so nothing is written.
  /usr/bin/time -f '%e' -o "$work/time.txt" "$ovelt" synonymous "$file" --coding "1-$l" --yes \
    --seed 1 > /dev/null 2>&1
  read -r syn_secs < "$work/time.txt"
  rm -f "$work/pairs.out"
  /usr/bin/time -f '%e %U %S %M' -o "$work/time.txt" "$ovelt" synonymous "$file" \
    --coding "1-$l" --yes --seed 1 --grid "$work/pairs.out" > /dev/null 2>&1
  read -r file_secs user sys kb < "$work/time.txt"
  table=$(stat -c %s "$work/pairs.out" 2>/dev/null || echo 0)
  awk -v size="$size" -v n="$n" -v os="$open_secs" -v ss="$syn_secs" -v fs="$file_secs" \
      -v user="$user" -v sys="$sys" -v kb="$kb" -v table="$table" 'BEGIN {
    printf "%-12s %9d %8.2f %8.2f %8.2f %8.2f %9.1f %9.1f\n", size, n * (n - 1) / 2, os, ss, fs,
           user + sys, kb / 1024, table / 1e6 }'
done
