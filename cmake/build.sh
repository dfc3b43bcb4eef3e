# shellcheck shell=bash
# For sourcing by the commands at the root: say, and buildPreset.

say() { echo "==> $*"; }

# What one checkout has compiled serves all others: paths below the checkout count as relative ones.
CCACHE_BASEDIR="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
export CCACHE_BASEDIR CCACHE_NOHASHDIR=1

# buildPreset <preset> [<target>...]: configures and builds; shows nothing but the progress on a terminal, and on a
# failure the errors.
buildPreset() {
    local preset="$1"
    shift
    local targets=() output status=0
    (($# == 0)) || targets=(--target "$@")
    output="$(mktemp)"
    say "Building build/$preset (quick when nothing changed)"
    if ! cmake --preset "$preset" >"$output" 2>&1; then
        cat "$output" >&2
        status=1
    elif [[ -t 1 ]]; then
        cmake --build --preset "$preset" "${targets[@]}" || status=1
    elif ! cmake --build --preset "$preset" "${targets[@]}" >"$output" 2>&1; then
        grep -E -A 12 'error|FAILED' "$output" >&2 || tail -n 40 "$output" >&2
        status=1
    fi
    rm -f "$output"
    ((status == 0)) || echo "${0##*/}: the build failed" >&2
    return "$status"
}
