#!/bin/sh
# Puts the staged copy of Orvel in the place of the installed one once that has ended, and starts it.
#   swap.sh TARGET STAGED WORK PID
# TARGET is the installed bundle, STAGED the new one inside the folder WORK, PID the process that goes.
#
# A whole copy stands at TARGET at every moment: the new one is brought beside it under the name of the backup,
# then the two change places in one step. So whatever ends this script, and whenever, Orvel still starts.
target=$1
staged=$2
work=$3
pid=$4
backup=$target.old
program=Contents/bin/orvel

log() {
    logger -p user.notice -t Orvel-update "$1" 2>/dev/null
}

# info_of BUNDLE KEY
info_of() {
    tr '\n' ' ' 2>/dev/null <"$1/Contents/Info.plist" |
        sed -n "s|.*<key>$2</key>[[:space:]]*<string>\\([^<]*\\)</string>.*|\\1|p"
}

version_of() {
    info_of "$1" CFBundleShortVersionString
}

build_of() {
    info_of "$1" CFBundleVersion
}

# Whether the process still runs the installed program, and not a stranger with the same number or name.
is_running() {
    case $(readlink "/proc/$pid/exe") in
        "$target"/*) true ;;
        *) false ;;
    esac
}

# One at a time; the second then finds the work done. The lock is let go when this script ends, however it ends.
exec 9<"${target%/*}"
if ! flock -w 60 9; then
    log "swap: another one has not ended"
    rm -rf "$work"
    exit 1
fi

version=$(version_of "$staged")
if [ -n "$version" ] && [ "$version" = "$(version_of "$target")" ] &&
    [ "$(build_of "$staged")" = "$(build_of "$target")" ]; then
    log "swap: target already at $version"
    rm -rf "$backup" "$work"
    exit 0
fi

rounds=0
while [ $rounds -lt 20 ] && is_running; do
    sleep 0.5
    rounds=$((rounds + 1))
done

log "swap: replacing $target"
rm -rf "$backup"
# The new program itself makes the exchange, which shows that it can be started here at all.
if mv -T "$staged" "$backup" && sync -f "$backup" && "$backup/$program" --exchange "$backup" "$target"; then
    rm -rf "$backup"
    touch "$target"
    setsid "$target/$program" </dev/null >/dev/null 2>&1 9<&- &
    rm -rf "$work"
    log "swap: done"
else
    log "swap: move failed, restoring previous build"
    rm -rf "$backup" "$work"
    exit 1
fi
