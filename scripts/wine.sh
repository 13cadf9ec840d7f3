#!/usr/bin/env bash
# Runs one Windows program under wine, without a display and without wine's own
# messages.
#
#   wine.sh FOLDER PROGRAM [ARGUMENT...]
#   wine.sh FOLDER --start    have wine's background processes start and stay
#   wine.sh FOLDER --stop     end them
#
# FOLDER is where wine keeps its drives and registry; it is made when missing.
# Without --start every program starts them anew, which takes longer than most
# programs.
set -euo pipefail

WINEPREFIX=$(realpath -m "$1")
export WINEPREFIX
shift
export WINEDEBUG=${WINEDEBUG--all}
export WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe=" # nothing to install or to show
unset DISPLAY
# wine takes the encoding of file names and arguments from the locale.
export LC_ALL=C.UTF-8

# Permissions of files count for root, too: without these it is like anyone else.
as_anyone=()
if [ "$(id -u)" -eq 0 ]; then
    as_anyone=(setpriv "--bounding-set=-dac_override,-dac_read_search")
fi

case $1 in
    --start)
        mkdir -p "$WINEPREFIX"
        "${as_anyone[@]}" wineserver --persistent
        # No pipe for them to hold open: its reader would wait for them.
        "${as_anyone[@]}" timeout 300 wine wineboot --init </dev/null >/dev/null 2>&1
        ;;
    --stop)
        if [ -d "$WINEPREFIX" ]; then
            wineserver --kill || true # nothing to end is no failure
        fi
        ;;
    *) exec "${as_anyone[@]}" wine "$@" ;;
esac
