# shellcheck shell=bash
# Sourced by the commands at the root: say, configurePreset and buildPreset.

say() { echo "==> $*"; }

# Objects compiled in one checkout are reused in all others: paths below the checkout count as relative, the dates of
# headers do not count, and precompiled headers are allowed.
CCACHE_BASEDIR="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
export CCACHE_BASEDIR CCACHE_NOHASHDIR=1 CCACHE_SLOPPINESS

# configurePreset <preset>: shows nothing, or everything on a failure.
configurePreset() {
    local output status=0
    output="$(mktemp)"
    cmake --preset "$1" >"$output" 2>&1 || status=1
    ((status == 0)) || cat "$output" >&2
    rm -f "$output"
    return "$status"
}

# Reports every half minute the progress of the build that writes to the given file.
sayProgress() {
    local begin=$SECONDS last
    while sleep 30 >/dev/null 2>&1; do # it may outlive this script, and must not keep its output open
        last="$(grep -E '^\[[0-9]+/[0-9]+\] ' "$1" | tail -n 1)"
        [[ -z "$last" ]] || echo "    ${last%%]*}] after $((SECONDS - begin)) s"
    done
}

# buildPreset <preset> [<target>...]: configures and builds; shows only the progress, and the errors on a failure.
buildPreset() {
    local preset="$1"
    shift
    local targets=() output progress status=0
    (($# == 0)) || targets=(--target "$@")
    say "Building build/$preset (quick when nothing changed)"
    if ! configurePreset "$preset"; then
        status=1
    elif [[ -t 1 ]]; then
        cmake --build --preset "$preset" "${targets[@]}" || status=1
    else
        output="$(mktemp)"
        sayProgress "$output" &
        progress=$!
        cmake --build --preset "$preset" "${targets[@]}" >"$output" 2>&1 || status=1
        kill "$progress" 2>/dev/null || true
        wait "$progress" 2>/dev/null || true
        ((status == 0)) || grep -E -A 12 'error|FAILED' "$output" >&2 || tail -n 40 "$output" >&2
        rm -f "$output"
    fi
    ((status == 0)) || echo "${0##*/}: the build failed" >&2
    return "$status"
}
