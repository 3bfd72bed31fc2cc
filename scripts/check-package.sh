#!/usr/bin/env bash
# Builds the Debian package from build/ and checks it as a shop owner's
# machine would meet it: what it holds, its desktop entry and metadata, and a
# first start of the unpacked program on an account that has never run it.
set -euo pipefail
cd "$(dirname "$0")/.."

app_id=example.brisko.Brisko
rm -f build/brisko_*.deb
(cd build && cpack -G DEB >cpack.log 2>&1) || { cat build/cpack.log >&2; exit 1; }
deb=$(echo build/brisko_*.deb)
echo "Checking $deb"

contents=$(dpkg-deb -c "$deb" | awk '{print $NF}')
expected=(
    ./usr/bin/brisko
    "./usr/share/applications/$app_id.desktop"
    "./usr/share/metainfo/$app_id.metainfo.xml"
    "./usr/share/icons/hicolor/scalable/apps/$app_id.svg"
    "./usr/share/icons/hicolor/48x48/apps/$app_id.png"
    "./usr/share/icons/hicolor/256x256/apps/$app_id.png"
)
# Every template and page of the manual in the source tree ships too.
while IFS= read -r file; do
    expected+=("./usr/share/brisko/$file")
done < <(find reports manual -type f 2>/dev/null | sort)
for path in "${expected[@]}"; do
    grep -qxF "$path" <<<"$contents" || { echo "The package lacks $path" >&2; exit 1; }
done

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
dpkg-deb -x "$deb" "$scratch/root"
desktop-file-validate "$scratch/root/usr/share/applications/$app_id.desktop"
appstreamcli validate --no-net "$scratch/root/usr/share/metainfo/$app_id.metainfo.xml" >/dev/null

# The program has no way to be told to stop, so it runs for a while on a
# new account and is ended. By then it has found its files (else it waits on
# the box that names the missing ones and makes nothing) and has made the
# account's database.
home="$scratch/home"
mkdir -p "$home"
mkdir -m 700 "$scratch/runtime"
status=0
env -i PATH=/usr/bin:/bin HOME="$home" LANG=C.UTF-8 \
    XDG_DATA_HOME="$home/.local/share" XDG_CONFIG_HOME="$home/.config" \
    XDG_CACHE_HOME="$home/.cache" XDG_RUNTIME_DIR="$scratch/runtime" \
    QT_QPA_PLATFORM=offscreen \
    timeout 8 "$scratch/root/usr/bin/brisko" >"$scratch/output.txt" 2>&1 || status=$?
if [ "$status" -ne 124 ]; then
    echo "The unpacked Brisko ended by itself (status $status):" >&2
    cat "$scratch/output.txt" >&2
    exit 1
fi
database="$home/.local/share/TOLVERAN/Brisko/data/bdesk.db"
[ -s "$database" ] || { echo "The unpacked Brisko made no database at $database" >&2; exit 1; }
echo "The package installs, describes itself and starts on a new account."

# Texts added since the catalogue was last brought up to date show in English
# to German users; say how many, without stopping the run.
catalogue="$scratch/brisko_de.ts"
cp translations/brisko_de.ts "$catalogue"
/usr/lib/qt6/bin/lupdate -silent -no-obsolete -locations none src -ts "$catalogue" 2>/dev/null
untranslated=$(grep -c 'type="unfinished"' "$catalogue" || true)
if [ "$untranslated" -gt 0 ]; then
    echo "warning: $untranslated texts have no German yet:" \
        "cmake --build build --target update_translations, then translate them." >&2
fi
