# Sourced by the scripts beside it: where the repository is, how many jobs to run, and how to keep a build quiet.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
jobs=${GLOSSMILL_JOBS:-$(getconf _NPROCESSORS_ONLN 2>/dev/null || echo 2)}
if [[ -z ${CMAKE_CXX_COMPILER_LAUNCHER:-} ]] && command -v ccache >/dev/null; then
  export CMAKE_CXX_COMPILER_LAUNCHER=ccache
fi

fail() {
  echo "${0##*/}: $*" >&2
  exit 1
}

# Prints the comment block at the top of the script, which is its help.
print_help() {
  sed -n '2,/^[^#]/s/^# \{0,1\}//p' "$0"
}

# quietly LOG COMMAND…: keeps the output in LOG and shows it only when the command fails.
quietly() {
  local log=$1
  shift
  mkdir -p "$(dirname "$log")"
  "$@" >"$log" 2>&1 && return
  local code=$?
  cat "$log" >&2
  echo "${0##*/}: exit code $code from $*" >&2
  return "$code"
}

# What a build tree's own programs are run with, building included, as the build asks them for their tests.
runner=(env)

# configure PRESET [OPTION…] and build PRESET [TARGET…], in the build tree of the preset.
configure() {
  local preset=$1
  (cd "$root" && quietly "build/$preset/configure.log" cmake --preset "$@")
}

build() {
  local preset=$1
  shift
  (cd "$root" && quietly "build/$preset/build.log" "${runner[@]}" cmake --build "build/$preset" --parallel "$jobs" \
    ${1:+--target "$@"} -- --quiet)
}
