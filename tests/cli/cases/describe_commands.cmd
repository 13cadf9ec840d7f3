touchstone2 --describe-commands | python3 -c '
import json, sys
tool = json.load(sys.stdin)
print(tool["name"], tool["version"], len(tool["commands"]) > 0)
print(*tool["options"][0].items(), sep="\n")'
touchstone2 --help | grep describe-commands
