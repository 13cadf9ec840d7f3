#!/usr/bin/env bash
# Runs one Windows program under wine, without a display and without wine's own
# messages.
#
#   wine.sh <folder of wine's drives and registry> <program> [argument...]
set -euo pipefail

export WINEPREFIX=$1
shift
export WINEDEBUG=${WINEDEBUG--all}
export WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe=" # nothing to install or to show
unset DISPLAY
# wine takes the encoding of file names and arguments from the locale.
export LC_ALL=C.UTF-8
exec wine "$@"
