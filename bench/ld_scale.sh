#!/usr/bin/env bash
# Times `ovelt linkage-disequilibrium` on generated alignments of biallelic sites: D, D', R, R^2,
# Fisher's exact and the chi-square test of every pair, with the pairs (too many for the grid)
# streamed to a file. Prints the wall seconds, the CPU seconds (the honest figure on a busy
# machine), the peak memory and the size of the pair file, and the load of the machine.
#
#   bench/ld_scale.sh [BUILD_DIR] [SIZES...]
# SIZES are NxS pairs: N sequences by S biallelic sites (default 500x2000, 1,999,000 pairs).
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
build=${1:-$here/../build/release}
shift || true
sizes=("$@")
if [ ${#sizes[@]} -eq 0 ]; then
  sizes=(500x2000)
fi
ovelt=$build/src/ovelt
work=${OVELT_BENCH_DIR:-$here/../build/bench-data}
mkdir -p "$work"
export OVELT_HOME=$work   # keep the recent-files list out of the user's directories

# N sequences by S sites, every site two nucleotides with a minor share drawn between 0.05 and
# 0.5, from a fixed seed.
make_biallelic() {
  awk -v n="$1" -v s="$2" 'BEGIN {
    srand(17); split("A C G T", base, " ");
    for (j = 1; j <= s; j++) {
      a = int(rand() * 4) + 1; b = (a + int(rand() * 3)) % 4 + 1;
      p[j] = 0.05 + 0.45 * rand(); first[j] = base[a]; second[j] = base[b];
    }
    for (i = 1; i <= n; i++) {
      printf(">seq%d\n", i); line = "";
      for (j = 1; j <= s; j++) line = line (rand() < p[j] ? second[j] : first[j]);
      print line;
    }
  }' > "$3"
}

uptime
printf '%-10s %9s %8s %8s %9s %9s\n' size pairs wall_s cpu_s peak_MB file_MB
for size in "${sizes[@]}"; do
  n=${size%x*}; s=${size#*x}
  file=$work/ld_${n}x${s}.fas
  [ -f "$file" ] || make_biallelic "$n" "$s" "$file"
  cat "$file" > /dev/null   # warm the page cache
  rm -f "$work/ld_pairs.out"
  /usr/bin/time -f '%e %U %S %M' -o "$work/time.txt" "$ovelt" linkage-disequilibrium "$file" \
    --all-sites --fisher --chi-square --yes --grid "$work/ld_pairs.out" > /dev/null 2>&1
  read -r wall user sys kb < "$work/time.txt"
  bytes=$(stat -c %s "$work/ld_pairs.out" 2>/dev/null || echo 0)
  awk -v size="$size" -v n="$n" -v s="$s" -v wall="$wall" -v user="$user" -v sys="$sys" \
      -v kb="$kb" -v bytes="$bytes" 'BEGIN {
    printf "%-10s %9d %8.2f %8.2f %9.1f %9.1f\n", size, s * (s - 1) / 2, wall, user + sys,
           kb / 1024, bytes / 1e6 }'
done
uptime
