#!/usr/bin/env bash
# Installs what is missing, builds the benchmarks and runs them. Arguments go to them: scripts/benchmarks.sh dup-100k.
set -euo pipefail

# shellcheck source=scripts/setup.sh
. "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

ensurePackages build run bench
buildPreset benchmark quillmere-benchmarks

exec "$projectRoot/build/benchmark/benchmarks/quillmere-benchmarks" "$@"
