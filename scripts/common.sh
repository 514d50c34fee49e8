# Shared by the commands at the root: messages, Debian packages, display and Wine prefix. Sourced, not run.

top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build="$top/build"
mkdir -p "$build"

say() { printf '==> %s\n' "$*"; }
fail() { printf 'error: %s\n' "$*" >&2; exit 1; }

# install_packages NAME...: installs those of the Debian packages that are missing.
install_packages() {
    local missing=() name
    for name in $(printf '%s\n' "$@" | sort -u); do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$name" 2>/dev/null)" = installed ] || missing+=("$name")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    local as_root=()
    if [ "$(id -u)" != 0 ]; then
        command -v sudo >/dev/null || fail "missing packages: ${missing[*]}; install them as root, or install sudo"
        as_root=(sudo)
    fi
    say "installing ${#missing[@]} Debian packages: ${missing[*]}"
    local log="$build/packages.log"
    "${as_root[@]}" apt-get update >"$log" 2>&1 || say "the package lists could not be refreshed; going on with the old ones"
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}" \
        >>"$log" 2>&1 || { tail -n 20 "$log" >&2; fail "installing packages failed; the whole log is $log"; }
}

packages_windows=(cmake ninja-build ccache g++-mingw-w64-x86-64-posix wine64 wine fonts-wine xvfb xauth googletest)
packages_logic=(cmake ninja-build ccache g++ clang libclang-rt-14-dev googletest)
packages_checks=(clang clang-format clang-tidy python3 python3-clang doxygen)
packages_workbench=(imagemagick alsa-utils)

# run_logged TITLE LOG COMMAND...: runs a long step; its progress lines go to the terminal, all else to the log.
run_logged() {
    local title=$1 log=$2 began=$SECONDS status
    shift 2
    say "$title"
    if [ -t 1 ]; then
        "$@" 2>&1 | tee "$log" | stdbuf -oL grep -oE '^\[[0-9]+/[0-9]+\][^/]*' | stdbuf -oL tr '\n' '\r'
        status=${PIPESTATUS[0]}
        printf '\n'
    else
        "$@" 2>&1 | tee "$log" | stdbuf -oL awk 'match($0, /^\[[0-9]+\/[0-9]+\]/) {
            split(substr($0, 2, RLENGTH - 2), n, "/"); part = int(n[1] * 4 / n[2])
            if (part != last) { last = part; print "    " n[1] " of " n[2]; fflush() } }'
        status=${PIPESTATUS[0]}
    fi
    [ "$status" = 0 ] || { tail -n 60 "$log" >&2; fail "$title: failed; the whole log is $log"; }
    say "$title: done in $((SECONDS - began)) s"
}

# build_preset PRESET [TARGET]: configures where needed and builds.
build_preset() {
    local preset=$1 target=${2:-all} jobs
    jobs=$(nproc)
    [ -f "$build/$preset/build.ninja" ] ||
        (cd "$top" && run_logged "configuring ($preset)" "$build/configure-$preset.log" cmake --preset "$preset") || exit 1
    (cd "$top" && run_logged "building ($preset)" "$build/build-$preset.log" \
        cmake --build "$build/$preset" --target "$target" -j "$jobs") || exit 1
}

xvfb_pids=()
started_prefixes=()

# start_display WIDTHxHEIGHT: starts a virtual display of our own and points DISPLAY to it.
start_display() {
    local size=$1 number log="$build/xvfb-${#xvfb_pids[@]}.log"
    Xvfb -displayfd 9 -screen 0 "${size}x24" -nolisten tcp -noreset 9>"$build/display-number.$$" >"$log" 2>&1 &
    local pid=$!
    xvfb_pids+=("$pid")
    local waited
    for waited in $(seq 600); do
        number=$(cat "$build/display-number.$$" 2>/dev/null)
        [ -z "$number" ] || break
        kill -0 "$pid" 2>/dev/null || fail "Xvfb did not start: $(cat "$log")"
        sleep 0.1
    done
    rm -f "$build/display-number.$$"
    [ -n "$number" ] || fail "Xvfb gave no display number within 60 s"
    export DISPLAY=":$number"
}

# make_prefix FOLDER [WIDTHxHEIGHT [TEMPLATE]]: makes the Wine prefix if it is missing, as a copy of the template if
# one is given, and leaves its server ended. With a size, programs get one virtual desktop of that size with captions
# and frames.
make_prefix() {
    export WINEPREFIX=$1 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml,winedbg.exe=" WINEARCH=win64
    local size=${2:-} template=${3:-}
    wineserver -k 2>/dev/null
    if [ ! -f "$WINEPREFIX/prepared-with-fonts" ]; then
        rm -rf "$WINEPREFIX"
        if [ -n "$template" ]; then
            rm -rf "$WINEPREFIX.new"
            cp -a "$template" "$WINEPREFIX.new" && mv "$WINEPREFIX.new" "$WINEPREFIX" ||
                fail "the Wine prefix could not be copied"
        else
            say "preparing Wine (about 20 s)"
            mkdir -p "$WINEPREFIX"
            wine wineboot -i >"$build/wineboot.log" 2>&1 ||
                fail "Wine could not be prepared: $(tail -n 5 "$build/wineboot.log")"
            wineserver -w
            local font
            mkdir -p "$WINEPREFIX/drive_c/windows/Fonts"
            for font in tahoma.ttf tahomabd.ttf marlett.ttf sserife.fon; do
                [ -e "$WINEPREFIX/drive_c/windows/Fonts/$font" ] || [ ! -e "/usr/share/wine/fonts/$font" ] ||
                    cp "/usr/share/wine/fonts/$font" "$WINEPREFIX/drive_c/windows/Fonts/"
            done
            touch "$WINEPREFIX/prepared-with-fonts"
        fi
    fi
    # The desktop is chosen when the first program starts, so the server is ended once the registry says which.
    [ "$(cat "$WINEPREFIX/prepared-for-desktop" 2>/dev/null)" != "desktop $size" ] || return 0
    local desktop='HKCU\Software\Wine\Explorer'
    if [ -n "$size" ]; then
        wine reg add "$desktop" /v Desktop /d Default /f >/dev/null 2>&1
        wine reg add "$desktop\Desktops" /v Default /d "$size" /f >/dev/null 2>&1
    else
        wine reg delete "$desktop" /v Desktop /f >/dev/null 2>&1
    fi
    wineserver -k
    wineserver -w
    echo "desktop $size" >"$WINEPREFIX/prepared-for-desktop"
}

# start_prefix FOLDER: keeps the server of a prefix made before up and opens its desktop on the current display.
start_prefix() {
    export WINEPREFIX=$1
    started_prefixes+=("$WINEPREFIX")
    wineserver -p
    # The first window brings the desktop process, which would hold the output of the program that it is started for.
    wine rundll32 user32.dll,GetDesktopWindow </dev/null >/dev/null 2>&1
}

# prepare_prefix FOLDER [WIDTHxHEIGHT]: makes the prefix if it is missing and starts it.
prepare_prefix() {
    make_prefix "$@"
    start_prefix "$1"
}

# Gives the prefix the dialog font that Windows has. Wine would take Tahoma, whose wider letters need more room than the
# dialogs have. The font of messages, which Wine takes from the former, stays Tahoma.
use_windows_dialog_font() {
    local tahoma='f5ffffff000000000000000000000000900100000000000100000000' # 11 pixels, weight 400
    tahoma+='5400610068006f006d0061000000'
    while [ ${#tahoma} -lt 184 ]; do tahoma+=00; done
    wine reg add 'HKCU\Control Panel\Desktop\WindowMetrics' /v MessageFont /t REG_BINARY /d "$tahoma" /f >/dev/null 2>&1
    wine reg add 'HKLM\Software\Microsoft\Windows NT\CurrentVersion\FontSubstitutes' /v 'MS Shell Dlg' \
        /d 'MS Sans Serif' /f >/dev/null 2>&1
}

# Ends what this run started, and nothing else.
end_all() {
    local each
    for each in "${started_prefixes[@]}"; do
        WINEPREFIX=$each wineserver -k 2>/dev/null
        WINEPREFIX=$each wineserver -w 2>/dev/null
    done
    started_prefixes=()
    for each in "${xvfb_pids[@]}"; do
        kill "$each" 2>/dev/null
        wait "$each" 2>/dev/null
    done
    xvfb_pids=()
}
trap end_all EXIT
trap 'exit 130' INT
trap 'exit 143' TERM
