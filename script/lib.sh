# Functions that the scripts of this folder share.
# shellcheck shell=bash
set -euo pipefail
unset CDPATH
root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)

go_to_root() { cd -- "$root"; }

heading() { printf '\n== %s\n' "$1"; }

fail() {
  printf '%s: %s\n' "${0##*/}" "$1" >&2
  exit 1
}

# The path of the installed program.
readonly installed_program=/usr/bin/vamo

# The checks install the package and remove it again; they must not remove a package that the user installed.
refuse_installed() {
  [[ ! -e $installed_program ]] || fail "$installed_program exists already; remove that package first"
}

# Shows the output of apt-get and of the packages' scripts only if they fail.
apt_get() {
  local as_root=() output
  if ((EUID != 0)); then
    command -v sudo >/dev/null || fail 'run this as root or install sudo: it installs packages'
    as_root=(sudo)
  fi
  if ! output=$("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq "$@" 2>&1); then
    printf '%s\n' "$output" >&2
    fail "apt-get $1 failed"
  fi
}

# Commands that run in the background, each in a process group of its own and with its output in a file of the folder
# `outputs`.
jobs=()
outputs=''
start() {
  [[ -n $outputs ]] || outputs=$(mktemp -d)
  set -m
  "$@" >"$outputs/${#jobs[@]}" 2>&1 &
  set +m
  jobs+=("$!")
}

# Prints the outputs in the order in which the commands were started, and fails if one of them failed.
wait_for_jobs() {
  local number status=0
  for number in "${!jobs[@]}"; do
    wait "${jobs[number]}" || status=$?
    cat "$outputs/$number"
  done
  jobs=()
  return "$status"
}

# Ends them before their time, when the script fails.
end_jobs() {
  local job
  for job in "${jobs[@]}"; do
    kill -- "-$job" 2>/dev/null || continue
    wait "$job" || true
  done
  [[ -z $outputs ]] || rm -rf -- "$outputs"
}

# Switches assistive technology on or off (true, false) for programs that start later.
switch_assistive_technology() {
  dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus \
    org.freedesktop.DBus.Properties.Set string:org.a11y.Status string:IsEnabled \
    "variant:boolean:$1" >/dev/null || fail 'the accessibility bus does not answer'
}

# within SECONDS COMMAND...: repeats the command until it succeeds or the time is over.
within() {
  local -r end=$((SECONDS + $1))
  shift
  until "$@" >/dev/null 2>&1; do
    ((SECONDS < end)) || return 1
    sleep 0.05
  done
}

# The folder may belong to another user, which git would refuse.
git_here() { git -c safe.directory='*' "$@"; }

# Sets the time stamp of packaged files to the time of the last commit, unless the environment sets it. Without a
# repository this is an unpacked source archive, whose files carry that time.
set_release_time() {
  if [[ -z ${SOURCE_DATE_EPOCH-} ]]; then
    if [[ -e .git ]]; then
      SOURCE_DATE_EPOCH=$(git_here log -1 --format=%ct)
    else
      SOURCE_DATE_EPOCH=$(stat -c %Y CMakeLists.txt)
    fi
  fi
  export SOURCE_DATE_EPOCH
}

configure() { cmake --preset "$1"; }

# Sets what the preset web needs: the folder of emscripten and, in case node is not Debian's, the folder in
# which Debian keeps the modules of the JavaScript optimiser.
find_emscripten() {
  EMSCRIPTEN_ROOT=$(em-config EMSCRIPTEN_ROOT)
  export EMSCRIPTEN_ROOT NODE_PATH=/usr/share/nodejs
}

# build PRESET [TARGET...]
build() {
  local -r preset=$1
  shift
  cmake --build --preset "$preset" -j "$(getconf _NPROCESSORS_ONLN)" ${1+--target "$@"}
}
