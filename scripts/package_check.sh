#!/usr/bin/env bash
# Makes the Debian package of a build, checks it, installs it, uses it as another user and removes it
# again, after which nothing of it may be left. Argument: the build's folder. Installing needs root.
set -euo pipefail
cd "$(dirname "$0")/.."
build=$1
. scripts/packages.sh
need_packages "${package_packages[@]}" "${check_packages[@]}" "${display_packages[@]}"
fail() {
  echo "package: $1" >&2
  exit 1
}

desktop-file-validate packaging/plenovia.desktop
appstreamcli validate --no-net "$build/packaging/plenovia.metainfo.xml"

public=$(mktemp -d)
trap 'rm -rf "$public"' EXIT
cpack --config "$build/CPackConfig.cmake" -B "$public" >"$public/log" ||
  { cat "$public/log" >&2; fail "it could not be made"; }
deb=$(ls "$public"/*.deb)
lintian --allow-root --fail-on error,warning "$deb"

if [ "$(id -u)" -ne 0 ]; then
  echo "package: made and valid; installing it is left out, as that needs root"
  exit 0
fi
[ -z "$(dpkg-query -W plenovia 2>/dev/null)" ] || fail "plenovia is installed here already"

user=plenovia-check
useradd --create-home --home-dir "$public/home" "$user"
trap 'dpkg --purge plenovia >/dev/null 2>&1 || true; userdel "$user" || true; rm -rf "$public"' EXIT
chmod 755 "$public"
cp scripts/installed_walk.sh scripts/virtual_desktop.sh "$public"

# What dpkg and the caches of other programs keep is not the package's.
all_files() {
  find /usr /etc /var /opt \( -path /var/lib/dpkg -o -path /var/cache -o -path /var/log -o -path /var/tmp \) \
    -prune -o -name mimeinfo.cache -prune -o -name icon-theme.cache -prune -o -print | sort
}
all_files >"$public/before"
dpkg -i "$deb" >"$public/log" 2>&1 || { cat "$public/log" >&2; fail "it could not be installed"; }

map=/usr/share/plenovia/samples/castle.rds
mime=application/x-plenovia-depth-map
as_user=(runuser -u "$user" -- env -i HOME="$public/home" PATH=/usr/bin:/bin LANG=C.UTF-8)
cp "$map" "$public/no-ending"
for file in "$map" "$public/no-ending"; do
  "${as_user[@]}" gio info -a standard::content-type "$file" | grep -q "type: $mime\$" ||
    fail "$file has not the type of a depth map"
done
[ "$("${as_user[@]}" xdg-mime query default "$mime")" = plenovia.desktop ] ||
  fail "xdg-open does not know what opens a depth map"
man -w plenovia sirds >/dev/null || fail "the manual pages are missing"
"${as_user[@]}" bash "$public/installed_walk.sh"

dpkg --purge plenovia >"$public/log" 2>&1 || { cat "$public/log" >&2; fail "it cannot be removed"; }
all_files >"$public/after"
diff "$public/before" "$public/after" || fail "removing it left the above behind"
echo "package: valid, works for another user, leaves nothing behind"
