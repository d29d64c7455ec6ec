#!/usr/bin/env bash
# How opening an alignment scales with its size. For each size, on a generated FASTA file with
# the page cache warm, prints:
#   MB          the file's size
#   cat_s       seconds to read its bytes (cat > /dev/null)
#   wc_s        seconds to read and scan them (wc -l): the floor of any reader
#   info_s      wall seconds of `ovelt info`, and info_cpu its CPU seconds (user + system, to the
#               hundredth: the honest figure on a busy machine)
#   x_wc        info_s / wc_s, and x_cat info_s / cat_s
#   B/cell      peak memory of `ovelt info` over the number of cells
#   pol_s       wall seconds of `ovelt dna-polymorphism` (the default report), and its x_wc
#   pol_B/cell  its peak memory over the cells
# Each figure is the median of RUNS runs (default 3; OVELT_BENCH_RUNS). With --formats, the
# same file is also written as NEXUS, PHYLIP and sequential MEGA (by `ovelt export`) and
# `ovelt info` timed on each, against the scan of that file.
#
#   bench/scale.sh [BUILD_DIR] [--formats] [SIZES...]
# SIZES are NxL pairs. The default runs 100 to 5,000 sequences and 10^3 to 10^7 sites, up to
# 2,000 x 10^6 (2 GB); it needs about 6 GB of disk in build/bench-data (OVELT_BENCH_DIR).
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
build=$here/../build/release
if [ $# -gt 0 ] && [ -d "$1" ]; then build=$1; shift; fi
formats=0
if [ $# -gt 0 ] && [ "$1" = --formats ]; then formats=1; shift; fi
sizes=("$@")
if [ ${#sizes[@]} -eq 0 ]; then
  sizes=(100x1000 100x10000 100x100000 100x1000000 100x10000000
         1000x1000 1000x10000 1000x100000 1000x1000000
         5000x1000 5000x10000 5000x100000 2000x1000000)
fi
runs=${OVELT_BENCH_RUNS:-3}
ovelt=$build/src/ovelt
gen=$build/bench/make_alignment
work=${OVELT_BENCH_DIR:-$here/../build/bench-data}
mkdir -p "$work"
export OVELT_HOME=$work   # keep the recent-files list out of the user's directories
timing=$work/time.txt

# Median of the numbers on standard input.
median() { sort -g | awk '{ v[NR] = $1 } END { print v[int((NR + 1) / 2)] }'; }

# Median wall seconds, CPU seconds (user + system) and peak KB of a command over $runs runs:
# "WALL CPU KB".
measure() {
  local secs=() cpu=() kb=()
  for _ in $(seq "$runs"); do
    local t0 t1
    t0=$(date +%s.%N)
    /usr/bin/time -f '%U %S %M' -o "$timing" "$@" > /dev/null 2>&1 || true
    t1=$(date +%s.%N)
    read -r user sys peak < "$timing"
    secs+=("$(awk -v a="$t0" -v b="$t1" 'BEGIN { print b - a }')")
    cpu+=("$(awk -v u="$user" -v s="$sys" 'BEGIN { print u + s }')")
    kb+=("$peak")
  done
  echo "$(printf '%s\n' "${secs[@]}" | median) $(printf '%s\n' "${cpu[@]}" | median)" \
    "$(printf '%s\n' "${kb[@]}" | median)"
}

# Median wall seconds of a command over $runs runs.
wall() {
  local secs=()
  for _ in $(seq "$runs"); do
    local t0 t1
    t0=$(date +%s.%N); "$@" > /dev/null 2>&1; t1=$(date +%s.%N)
    secs+=("$(awk -v a="$t0" -v b="$t1" 'BEGIN { print b - a }')")
  done
  printf '%s\n' "${secs[@]}" | median
}

echo "load: $(cut -d' ' -f1-3 /proc/loadavg)"
printf '%-16s %8s %7s %7s %8s %8s %6s %6s %7s %8s %6s %10s\n' size MB cat_s wc_s info_s \
  info_cpu x_wc x_cat B/cell pol_s x_wc pol_B/cell
for size in "${sizes[@]}"; do
  n=${size%x*}; l=${size#*x}
  file=$work/aln_${n}x${l}.fas
  [ -f "$file" ] || "$gen" "$n" "$l" 42 "$file"
  cells=$((n * l))
  cat "$file" > /dev/null   # warm the page cache
  cat_s=$(wall cat "$file")
  wc_s=$(wall wc -l "$file")
  read -r info_s info_cpu info_kb < <(measure "$ovelt" info "$file")
  read -r pol_s _ pol_kb < <(measure "$ovelt" dna-polymorphism "$file")
  awk -v size="$size" -v bytes="$(stat -c %s "$file")" -v cat="$cat_s" -v wc="$wc_s" \
      -v info="$info_s" -v icpu="$info_cpu" -v ikb="$info_kb" -v pol="$pol_s" -v pkb="$pol_kb" \
      -v cells="$cells" '
    function floor(x) { return x < 0.001 ? 0.001 : x }
    BEGIN {
      printf "%-16s %8.1f %7.3f %7.3f %8.3f %8.2f %6.1f %6.1f %7.3f %8.3f %6.1f %10.3f\n", size,
             bytes / 1e6, cat, wc, info, icpu, info / floor(wc), info / floor(cat),
             ikb * 1024 / cells, pol, pol / floor(wc), pkb * 1024 / cells }'
  if [ "$formats" = 1 ]; then
    for format in nexus phylip mega; do
      other=$work/aln_${n}x${l}.$format
      [ -f "$other" ] || "$ovelt" export "$file" -f "$format" -o "$other" --interleave=false \
        > /dev/null
      cat "$other" > /dev/null
      o_wc=$(wall wc -l "$other")
      read -r o_s o_cpu o_kb < <(measure "$ovelt" info "$other")
      awk -v name="  $format" -v bytes="$(stat -c %s "$other")" -v wc="$o_wc" -v info="$o_s" \
          -v cpu="$o_cpu" -v kb="$o_kb" -v cells="$cells" 'BEGIN {
        printf "%-16s %8.1f %7s %7.3f %8.3f %8.2f %6.1f %6s %7.3f\n", name, bytes / 1e6, "", wc,
               info, cpu, info / (wc < 0.001 ? 0.001 : wc), "", kb * 1024 / cells }'
    done
  fi
done
