#!/bin/sh
# Checks the desktop integration as distributions do: the desktop entry, the AppStream metadata
# and the file types validate, they name each other consistently, and an installation into a
# temporary prefix holds every file in its place.
# usage: check-desktop-files.sh SOURCE_DIR BUILD_DIR
set -eu
src=$1
build=$2
desktop=$src/resources/desktop
failed=0
fail() { echo "FAILED: $*"; failed=1; }

desktop-file-validate "$desktop/app.tamo.Tamo.desktop" || fail "desktop-file-validate"
appstreamcli validate --no-net --explain "$desktop/app.tamo.Tamo.metainfo.xml" ||
    fail "appstreamcli validate"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/mime/packages"
cp /usr/share/mime/packages/freedesktop.org.xml "$desktop/app.tamo.Tamo.xml" "$work/mime/packages/"
if ! update-mime-database "$work/mime" >"$work/mime.log" 2>&1 || grep -qiE "error|invalid" "$work/mime.log"; then
    cat "$work/mime.log"
    fail "update-mime-database"
fi

# Every type the desktop entry opens is defined, and AppStream lists the same types.
defined=$(grep -o 'mime-type type="[^"]*"' "$desktop/app.tamo.Tamo.xml" | cut -d'"' -f2 | sort)
opened=$(sed -n 's/^MimeType=//p' "$desktop/app.tamo.Tamo.desktop" | tr ';' '\n' |
    grep -v '^x-scheme-handler/' | grep -v '^$' | sort)
listed=$(grep -o '<mediatype>[^<]*' "$desktop/app.tamo.Tamo.metainfo.xml" | cut -d'>' -f2 | sort)
[ "$defined" = "$opened" ] || fail "the desktop entry and the MIME definitions name different types"
[ "$defined" = "$listed" ] || fail "the AppStream metadata and the MIME definitions name different types"
grep -q '^MimeType=.*x-scheme-handler/tamo;' "$desktop/app.tamo.Tamo.desktop" ||
    fail "the desktop entry does not take tamo:// links"

cmake --install "$build" --prefix "$work/prefix" >/dev/null || fail "cmake --install"
for f in bin/tamo \
    share/applications/app.tamo.Tamo.desktop \
    share/mime/packages/app.tamo.Tamo.xml \
    share/metainfo/app.tamo.Tamo.metainfo.xml \
    share/icons/hicolor/scalable/apps/app.tamo.Tamo.svg \
    share/doc/tamo/manual/index.html \
    share/doc/tamo/LICENSE; do
    [ -s "$work/prefix/$f" ] || fail "not installed: $f"
done
for size in 16 22 24 32 48 64 128 256 512; do
    png=$work/prefix/share/icons/hicolor/${size}x${size}/apps/app.tamo.Tamo.png
    if [ ! -s "$png" ]; then
        fail "not installed: the $size pixel icon"
    elif [ "$(od -An -j16 -N8 -tu1 "$png" | awk '{print $3*256+$4, $7*256+$8}')" != "$size $size" ]; then
        fail "the $size pixel icon has another size"
    fi
done
# The installed program starts.
[ -x "$work/prefix/bin/tamo" ] && "$work/prefix/bin/tamo" help >/dev/null || fail "the installed tamo does not run"

[ $failed -eq 0 ] && echo "desktop files and installation: all checks passed"
exit $failed
