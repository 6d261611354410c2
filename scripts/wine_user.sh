# Sourced by the scripts that start Wine: who runs it, and in which surroundings.

screen_pid=

# Wine programs run as an ordinary user: to root no file is read-only and no folder is closed. Only
# the machine that ./run opens belongs to whoever calls it.
as_user=()
if [ "$(id -u)" = 0 ] && [ -z "${VISTREL_AS_CALLER:-}" ]; then
    as_user=(setpriv --reuid=65534 --regid=65534 --clear-groups)
fi

# Gives files and folders to that user.
own() {
    if [ ${#as_user[@]} -gt 0 ]; then chown -R 65534:65534 "$@"; fi
}

# Makes a private folder in which that user may work, and prints its path. DOS attributes are kept
# in extended attributes, which not every file system for temporary files has.
make_private_folder() {
    local parent folder
    for parent in /tmp /var/tmp; do
        folder=$(mktemp -d "$parent/vistrel.XXXXXXXX") || continue
        if /usr/bin/python3 -c 'import os, sys; os.setxattr(sys.argv[1], "user.test", b"1")' "$folder" \
            2>/dev/null; then
            own "$folder"
            echo "$folder"
            return 0
        fi
        rmdir "$folder"
    done
    echo "no folder for temporary files keeps extended attributes" >&2
    return 1
}

# in_wine FOLDER COMMAND...: runs a command as the ordinary user with the prefix FOLDER/prefix and
# the home FOLDER/home. The code page is fixed (1252), whatever the caller's language is,
# unless COMMAND begins with other settings.
in_wine() {
    local folder=$1
    shift
    "${as_user[@]}" env -u XDG_DATA_HOME -u XDG_CONFIG_HOME -u XDG_CACHE_HOME -u XDG_RUNTIME_DIR \
        -u LANGUAGE -u WINEARCH -u WINELOADER LC_ALL=C.UTF-8 HOME="$folder/home" \
        WINEPREFIX="$folder/prefix" WINEDEBUG="${WINEDEBUG:--all}" \
        WINEDLLOVERRIDES='mscoree=;mshtml=;winemenubuilder.exe=' "$@"
}

# Ends every program of FOLDER/prefix and waits until they are gone.
end_wine() {
    if [ -d "$1/prefix" ]; then in_wine "$1" wineserver -k 2>/dev/null; fi
    return 0
}

# Removes a private folder; a program that is just ending may still write into it.
remove_private_folder() {
    local attempt
    for attempt in 1 2 3 4 5; do
        rm -rf "$1" 2>/dev/null && return 0
        sleep 0.2
    done
    rm -rf "$1"
}

# Makes FILE with a password for a screen of any number.
make_screen_password() {
    (umask 077 && {
        printf '\377\377\0\0\0\0\0\022MIT-MAGIC-COOKIE-1\0\020'
        head -c 16 /dev/urandom
    } >"$1")
}

# start_screen FOLDER [BITS [SIZE]]: starts a virtual X screen on a free display, of 24 bits a pixel or
# of BITS, and of 1024x768 pixels or of SIZE. Sets DISPLAY, XAUTHORITY and screen_pid; what it shows is in FOLDER/Xvfb_screen0. Screens of
# other folders, or of other roots on the same machine, may have had the same number before or get it
# afterwards: a password keeps each to the programs that were started for it.
start_screen() {
    local attempt
    if [ "$(id -u)" = 0 ]; then mkdir -p -m 1777 /tmp/.X11-unix; fi
    make_screen_password "$1/screen_password" && own "$1/screen_password" || return 1
    export XAUTHORITY=$1/screen_password
    # A session of its own: an interrupt from the keyboard is not meant for the screen.
    : >"$1/display"
    setsid Xvfb -displayfd 3 -screen 0 "${3:-1024x768}x${2:-24}" -fbdir "$1" -nolisten tcp -noreset \
        -auth "$1/screen_password" 3>"$1/display" >"$1/screen.log" 2>&1 &
    screen_pid=$!
    for attempt in $(seq 300); do
        if [ -s "$1/display" ]; then
            DISPLAY=:$(cat "$1/display")
            export DISPLAY
            return 0
        fi
        kill -0 "$screen_pid" 2>/dev/null || break
        sleep 0.1
    done
    echo "the virtual screen did not start: $(tail -n 1 "$1/screen.log")" >&2
    return 1
}

# Ends the screen, if one was started.
end_screen() {
    [ -n "$screen_pid" ] || return 0
    kill "$screen_pid" 2>/dev/null
    wait "$screen_pid" 2>/dev/null
    screen_pid=
}
