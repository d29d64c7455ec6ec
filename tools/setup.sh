#!/usr/bin/env bash
# Installs what the build needs (Debian 12 packages, only those missing), then configures and
# builds a preset (default: release). Safe to run again: it only does what is left to do.
#
#   tools/setup.sh [PRESET]      PRESET: release (default), asan or fuzz
set -euo pipefail
cd "$(dirname "$0")/.."
preset=${1:-release}

packages=(cmake g++ make qt6-base-dev qt6-svg-dev libcli11-dev libgtest-dev libgmock-dev
          libbenchmark-dev)
if [ "$preset" = fuzz ]; then packages+=(clang libclang-rt-14-dev); fi
# Independent checks: a reader of the files the writers make (Biopython), and the
# Nei-Gojobori counts of yn00 (PAML) for the synonymous substitutions.
if [ "$preset" = release ]; then packages+=(python3-biopython paml); fi

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  sudo=""; [ "$(id -u)" -eq 0 ] || sudo="sudo"
  echo "Installing: ${missing[*]}" >&2
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq "${missing[@]}" >&2
fi

cmake --preset "$preset" > /dev/null
if [ "$preset" = fuzz ]; then
  # Only the fuzz targets: the rest of the tree is not linked with the sanitizer runtimes.
  cmake --build --preset fuzz -j2 --target fuzz_fasta fuzz_nbrf fuzz_mega fuzz_phylip fuzz_nexus fuzz_ovp >&2
else
  cmake --build --preset "$preset" -j2 >&2
fi
