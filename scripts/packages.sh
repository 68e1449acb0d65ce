# The Debian packages that the project needs, and the function that installs those
# that are missing. Sourced by ./run and ./test.

# To build and run the program.
packages_to_run=(
    g++ cmake ninja-build libgl-dev libx11-dev libfontconfig-dev
    qt6-base-dev qt6-base-dev-tools qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
    qt6-svg-dev qt6-image-formats-plugins qt6-wayland
    qt6-pdf-dev qt6-charts-dev libqpdf-dev libxlsxwriter-dev qt6-translations-l10n
)

# To make the Debian package.
packages_to_package=(dpkg-dev)

# To run the tests.
packages_to_test=(
    lld libgtest-dev xvfb xauth xdotool openbox groff-base
    desktop-file-utils shared-mime-info appstream
)

# To run everything: sanitizers, formatting, lint and a decimal-comma locale.
packages_to_test_all=(clang-format clang-tidy locales libbenchmark-dev)

# ensure_packages <package…>: installs the missing ones; asks for the password only
# when there is something to install.
ensure_packages() {
    local missing=() package
    if ! command -v dpkg-query >/dev/null 2>&1; then
        echo "This script installs Debian packages; on other systems install these by hand: $*" >&2
        return 0
    fi
    for package in "$@"; do
        case "$(dpkg-query -W -f '${db:Status-Abbrev}' "$package" 2>/dev/null)" in
            ii*) ;;
            *) missing+=("$package") ;;
        esac
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing: ${missing[*]}"
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null 2>&1; then
            echo "Missing packages, and no sudo to install them. As root: apt-get install ${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq \
            --no-install-recommends "${missing[@]}" >/dev/null
}
