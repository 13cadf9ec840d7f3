touchstone2 explain E2308 E2031 E2005 w2308 "$(printf 'E\033[1m')"
