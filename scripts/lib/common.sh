# Shared by the scripts: where the project lies, how they speak, and how they build.
# Each script sources this file first; it changes into the project's folder.

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

# say TEXT: tells what happens next.
say() { printf '\n==> %s\n' "$*"; }

# fail TEXT REMEDY: ends the script with what went wrong and what to do about it.
fail() {
    printf '\n!!! %s\n    What to do: %s\n' "$1" "$2" >&2
    exit 1
}

# step TEXT REMEDY COMMAND...: says what it does and does it; a failure names the remedy.
step() {
    local what=$1 remedy=$2
    shift 2
    say "$what"
    "$@" || fail "This step failed: $what" "$remedy"
}

# build PRESET [TARGET...]: configures where needed and builds.
build() {
    local preset=$1
    shift
    step "Configuring the $preset build in build/$preset" \
        "read the message above; a build folder made with other tools or moved from elsewhere is made anew after: rm -rf build/$preset" \
        cmake --preset "$preset" --log-level=WARNING
    step "Building $preset (the first time takes several minutes, later ones seconds)" \
        "read the first error above; if the compiler was killed the memory ran out: CMAKE_BUILD_PARALLEL_LEVEL=1 ${0#"$PWD"/}" \
        cmake --build --preset "$preset" ${1:+--target "$@"}
}
