#!/usr/bin/env bash
# wine_session.sh start HOLD_EXE | stop
# Starts or ends one Wine process that keeps the Wine server of $WINEPREFIX alive while the tests run.
set -euo pipefail

holdSeconds=3600
readyFile=holder_is_ready

end_session() {
  # Ends only the processes of this prefix; fails when there are none.
  wineserver -k || true
  rm -f "$WINEPREFIX/$readyFile"
}

case "$1" in
  start)
    hold=$(realpath "$2")
    mkdir -p "$WINEPREFIX"
    end_session
    cd "$WINEPREFIX"
    if [[ ! -f system.reg ]]; then
      wineboot --init </dev/null >/dev/null 2>&1
      wineserver -w
    fi
    setsid wine "$hold" "$readyFile" "$holdSeconds" </dev/null >/dev/null 2>&1 &
    for ((tenth = 0; tenth < 600; ++tenth)); do
      if [[ -f $readyFile ]]; then
        exit 0
      fi
      sleep 0.1
    done
    echo "The Wine process that should stay alive did not start within a minute." >&2
    exit 1
    ;;
  stop)
    end_session
    ;;
  *)
    echo "usage: wine_session.sh start HOLD_EXE | stop" >&2
    exit 64
    ;;
esac
