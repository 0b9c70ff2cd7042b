# Shared by scripts/run, scripts/test and scripts/fuzz. Sourced, not run.

TALU_ROOT="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"

# Debian packages the build and the program need.
TALU_BUILD_PACKAGES=(
    build-essential cmake ninja-build pkg-config
    qt6-base-dev qt6-base-dev-tools qt6-l10n-tools qt6-tools-dev qt6-translations-l10n libgl-dev zlib1g-dev libpcap-dev
    fonts-dejavu-core
)

talu_sudo() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# Installs the given Debian packages, but only those that are missing, so a
# second run on a prepared machine touches nothing and asks for no password.
talu_install_packages() {
    local missing=() pkg
    for pkg in "$@"; do
        if ! dpkg-query -W -f='${Status}' "$pkg" 2>/dev/null | grep -q "ok installed"; then
            missing+=("$pkg")
        fi
    done
    [ "${#missing[@]}" -eq 0 ] && return 0
    echo "Installing: ${missing[*]}"
    talu_sudo env DEBIAN_FRONTEND=noninteractive apt-get update -qq
    talu_sudo env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

# talu_build <preset> [extra cmake arguments...]: configures once, then builds incrementally.
talu_build() {
    local preset="$1"; shift
    local dir="$TALU_ROOT/build/$preset"
    # Presets are looked up in the current folder.
    (
        cd "$TALU_ROOT"
        if [ ! -f "$dir/CMakeCache.txt" ] || [ "$#" -gt 0 ]; then
            cmake --preset "$preset" "$@"
        fi
        cmake --build --preset "$preset" --parallel "$(nproc)"
    )
}
