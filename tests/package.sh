#!/usr/bin/env bash
# Installs the Debian package on a bare Debian, starts it from its desktop entry, removes it and tells
# what is left. As root; takes minutes.
#   tests/package.sh FILE.deb FOLDER [MIRROR]     FOLDER is made if it is not there, and kept
set -euo pipefail

deb=$(realpath "$1")
root=$(realpath -m "$2")/root

[[ -d $root/usr ]] || debootstrap --variant=minbase bookworm "$root" ${3:+"$3"}

inside()
{
    chroot "$root" env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 \
        DEBIAN_FRONTEND=noninteractive "$@" </dev/null
}
# Folders shared with other packages come and go with those.
snapshot() { (cd "$root" && find etc usr opt srv home root var/lib -xdev ! -path 'var/lib/*' ! -type d | sort); }

mounted=()
end()
{
    for place in "${mounted[@]}"; do umount -l "$root/$place"; done
    rm -f "$root/tmp/quillmere.deb" "$root/tmp/desktop.sh"
}
trap end EXIT
for place in proc dev; do
    mountpoint -q "$root/$place" && continue
    mount --bind "/$place" "$root/$place"
    mounted=("$place" "${mounted[@]}")
done

cp /etc/resolv.conf "$root/etc/"
inside apt-get -q update
# What a desktop has, so that what is left later is the package's doing.
inside apt-get -q -y install --no-install-recommends dbus xvfb xdotool openbox libglib2.0-bin libgtk-3-bin \
    hicolor-icon-theme
inside apt-get -q clean
# What a run that was cut short has left.
inside dpkg -s quillmere >/dev/null 2>&1 && inside apt-get -q -y purge quillmere
inside apt-get -q -y autoremove --purge
before=$(snapshot)

echo "== install"
cp "$deb" "$root/tmp/quillmere.deb"
inside apt-get -q -y install --no-install-recommends /tmp/quillmere.deb

echo "== start from the desktop entry"
cat >"$root/tmp/desktop.sh" <<'DESKTOP'
set -euo pipefail
export XDG_RUNTIME_DIR=$(mktemp -d) HOME=$(mktemp -d)
Xvfb -screen 0 1512x982x24 -nolisten tcp -displayfd 5 5>$XDG_RUNTIME_DIR/display 2>/dev/null &
server=$!
until [[ -s $XDG_RUNTIME_DIR/display ]]; do sleep 0.1; done
export DISPLAY=:$(<$XDG_RUNTIME_DIR/display)
openbox 2>/dev/null &
windows=$!
dbus-update-activation-environment DISPLAY HOME XDG_RUNTIME_DIR # as a session does, for what the bus starts
gtk-launch com.quillmere.Quillmere
for _ in {1..100}; do
    quillmerectl get Presentation 2>/dev/null && break
    sleep 0.1
done
quillmerectl get Presentation >/dev/null
xdotool search --sync --onlyvisible --name '^Quillmere Setup$' getwindowgeometry
quillmerectl action quit
for _ in {1..100}; do
    quillmerectl get Presentation >/dev/null 2>&1 || break
    sleep 0.1
done
echo "its own files:"
find "$HOME" -type f
kill $windows $server
wait $windows $server || true
rm -rf "$HOME" "$XDG_RUNTIME_DIR"
DESKTOP
inside dbus-run-session -- bash /tmp/desktop.sh

echo "== remove"
inside apt-get -q -y purge quillmere
inside apt-get -q -y autoremove --purge
inside apt-get -q clean
left=$(diff <(echo "$before") <(snapshot) | grep '^[<>]' || true)
if [[ -n $left ]]; then
    echo "left behind (>) or gone (<):"
    echo "$left"
    exit 1
fi
echo "nothing is left"
