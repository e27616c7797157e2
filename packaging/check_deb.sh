#!/usr/bin/env bash
# Builds the Debian package from a build folder and checks that it holds the programs, the data,
# the desktop file, the icon, the metainfo and the manual pages. The package is made without
# compression and without the library scan, which only cost time here.
set -euo pipefail
build=$1
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
cd "$build"
cpack -G DEB -B "$out" -D CPACK_DEBIAN_COMPRESSION_TYPE=none -D CPACK_DEBIAN_PACKAGE_SHLIBDEPS=OFF >/dev/null
deb=$(ls "$out"/*.deb)
files=$(dpkg-deb -c "$deb" | awk '{print $6}')
status=0
for f in ./usr/bin/vorlexa ./usr/bin/vorlexa-cli \
         ./usr/share/vorlexa/data/dictionarye-a ./usr/share/vorlexa/data/dictionarya-e \
         ./usr/share/vorlexa/data/uxxuma ./usr/share/vorlexa/data/uxxume ./usr/share/vorlexa/data/uxxumy \
         ./usr/share/vorlexa/data/read.txt \
         ./usr/share/applications/vorlexa.desktop ./usr/share/icons/hicolor/scalable/apps/vorlexa.svg \
         ./usr/share/metainfo/org.example.vorlexa.metainfo.xml ./usr/share/man/man1/vorlexa-cli.1.gz ./usr/share/man/man1/vorlexa.1.gz; do
  if ! grep -qxF "$f" <<<"$files"; then
    echo "missing from the package: $f"
    status=1
  fi
done
[ "$(dpkg-deb -f "$deb" Package)" = vorlexa ] || { echo "wrong package name"; status=1; }
exit $status
