# Sourced by the scripts that need Debian packages: need_packages NAME...
#
# Installs what of the named packages is missing. Says so, and asks once when a person is there to
# answer.

need_packages() {
  local missing=()
  local name
  for name in "$@"; do
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$name" 2>/dev/null)" = installed ] ||
      missing+=("$name")
  done
  [ ${#missing[@]} -eq 0 ] && return 0

  echo "These Debian packages are needed and not yet here:"
  printf '  %s\n' "${missing[@]}"
  if [ -t 0 ] && [ -z "${CI:-}" ]; then
    local answer
    read -r -p "Install them now? [Y/n] " answer
    case "$answer" in
      "" | [Yy]*) ;;
      *)
        echo "Nothing was installed." >&2
        return 1
        ;;
    esac
  fi
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    as_root=(sudo)
  fi
  "${as_root[@]}" apt-get update -qq || return 1
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null || return 1
  echo "The packages are installed."
}

# To build the cores and the command line.
core_packages=(
  cmake g++ ninja-build
  libcli11-dev libexpected-dev libfontconfig-dev libfreetype-dev libgif-dev libjpeg62-turbo-dev
  libmuparser-dev libpng-dev libtinyobjloader-dev
  zlib1g-dev
)
# To build the desktop program, and to show it.
build_packages=(
  "${core_packages[@]}"
  qt6-base-dev qt6-svg-dev libgl-dev libxcb1-dev fonts-dejavu-core
)
# To make the Debian package.
package_packages=(dpkg-dev file)
# To build and run its tests.
test_packages=(libgtest-dev)
# To check it as thoroughly as the continuous integration does.
check_packages=(
  clang-14 clang-format-14 clang-tidy-14 libclang-rt-14-dev
  appstream desktop-file-utils libglib2.0-bin lintian man-db shared-mime-info xdg-utils
)
# To use the desktop program without a display.
display_packages=(xvfb openbox xdotool)
