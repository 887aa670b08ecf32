# Sourced by the test and demo scripts: one Xvfb display, one private WINEPREFIX under
# the build folder and one persistent wineserver for the whole run, all stopped by
# their process ids when the run ends.
#   wine_session_start BUILD_DIR   exports DISPLAY, WINEPREFIX, WINEDEBUG, ...
#   wine_session_stop

WINE64=/usr/lib/wine/wine64
_xvfb_pid=""
_wineserver_pid=""

wine_session_start() {
  local build=$1
  mkdir -p "$build"
  export WINEPREFIX="$build/wineprefix"
  export WINEDEBUG=-all
  export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
  export WINEARCH=win64
  export LIBGL_ALWAYS_SOFTWARE=1 GALLIUM_DRIVER=llvmpipe
  unset WAYLAND_DISPLAY

  if [ -z "${TESSARIN_USE_DISPLAY:-}" ] || [ -z "${DISPLAY:-}" ]; then
    local fdfile
    fdfile=$(mktemp)
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$fdfile" >/dev/null 2>&1 &
    _xvfb_pid=$!
    local i
    for i in $(seq 1 100); do
      [ -s "$fdfile" ] && break
      sleep 0.1
    done
    export DISPLAY=":$(head -n1 "$fdfile")"
    rm -f "$fdfile"
  fi

  wineserver -f -p >/dev/null 2>&1 &
  _wineserver_pid=$!
  if [ ! -f "$WINEPREFIX/.tessarin-ready" ]; then
    "$WINE64" wineboot -i >/dev/null 2>&1
    # No crash dialog: a crashing test process must end, not wait for a click.
    "$WINE64" reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f >/dev/null 2>&1
    "$WINE64" reg add 'HKLM\Software\Microsoft\Windows NT\CurrentVersion\AeDebug' /v Auto /t REG_SZ /d 1 /f >/dev/null 2>&1
    # No window manager runs in Xvfb: unmanaged windows spare winex11 its wait for a
    # window manager on every hide and destroy.
    "$WINE64" reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /t REG_SZ /d N /f >/dev/null 2>&1
    touch "$WINEPREFIX/.tessarin-ready"
  fi
  # Wine's services and its desktop process start with the first program that needs
  # them and inherit that program's standard handles. Started here, they hold
  # /dev/null instead of a test runner's pipe, which the runner would wait on.
  "$WINE64" rundll32.exe user32.dll,GetDesktopWindow </dev/null >/dev/null 2>&1 || true
}

wine_session_stop() {
  if [ -n "$_wineserver_pid" ]; then
    # The server of this prefix ends its own clients (wine's services and desktop),
    # then itself; the process id confirms that it is gone.
    wineserver -k >/dev/null 2>&1 || true
    kill "$_wineserver_pid" 2>/dev/null || true
    wait "$_wineserver_pid" 2>/dev/null || true
    _wineserver_pid=""
  fi
  if [ -n "$_xvfb_pid" ]; then
    kill "$_xvfb_pid" 2>/dev/null || true
    wait "$_xvfb_pid" 2>/dev/null || true
    _xvfb_pid=""
  fi
}
