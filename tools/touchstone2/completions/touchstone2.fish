# fish completion for touchstone2. Made by scripts/make_manual.py.

complete -c touchstone2 -n '__fish_use_subcommand' -f
complete -c touchstone2 -n '__fish_use_subcommand' -s h -l help -d 'Print this help message and exit'
complete -c touchstone2 -n '__fish_use_subcommand' -l version -d 'Print the version and exit'
complete -c touchstone2 -n '__fish_use_subcommand' -a check -d 'Say which files are valid and why others are not'
complete -c touchstone2 -n '__fish_use_subcommand' -a info -d 'Say what a file holds'
complete -c touchstone2 -n '__fish_use_subcommand' -a ports -d 'List port names, or write a file with others'
complete -c touchstone2 -n '__fish_use_subcommand' -a convert -d 'Write a file as version 1 or version 2'
complete -c touchstone2 -n '__fish_use_subcommand' -a reorder -d 'Write a file with its ports in another order'
complete -c touchstone2 -n '__fish_use_subcommand' -a subset -d 'Write a file with some of its ports'

complete -c touchstone2 -n '__fish_seen_subcommand_from check' -s h -l help -d 'Print this help message and exit'
complete -c touchstone2 -n '__fish_seen_subcommand_from check' -s q -l quiet -d 'Print diagnostics only, no verdicts and no total'
complete -c touchstone2 -n '__fish_seen_subcommand_from check' -l header-only -d 'Read only up to the number of ports, which leaves the data unchecked'
complete -c touchstone2 -n '__fish_seen_subcommand_from check' -l werror -d 'Count a file with warnings as refused'
complete -c touchstone2 -n '__fish_seen_subcommand_from check' -l json -d 'Print JSON Lines instead, and no diagnostics to standard error'

complete -c touchstone2 -n '__fish_seen_subcommand_from info' -s h -l help -d 'Print this help message and exit'
complete -c touchstone2 -n '__fish_seen_subcommand_from info' -l json -d 'Print JSON instead, and no diagnostics to standard error'

complete -c touchstone2 -n '__fish_seen_subcommand_from ports' -s h -l help -d 'Print this help message and exit'
complete -c touchstone2 -n '__fish_seen_subcommand_from ports' -l set -r -d 'Name a port, as 2=out; may be repeated'
complete -c touchstone2 -n '__fish_seen_subcommand_from ports' -l from -r -d 'Take names from a list, or - for standard input'
complete -c touchstone2 -n '__fish_seen_subcommand_from ports' -s o -l output -r -d 'The file to write, or - for standard output'
complete -c touchstone2 -n '__fish_seen_subcommand_from ports' -l force -d 'Replace OUT if it exists'
complete -c touchstone2 -n '__fish_seen_subcommand_from ports' -l precision -x -a 'auto' -d 'Significant digits: auto, or a number from 1 to 17'

complete -c touchstone2 -n '__fish_seen_subcommand_from convert' -s h -l help -d 'Print this help message and exit'
complete -c touchstone2 -n '__fish_seen_subcommand_from convert' -l to -x -a 'v1 v2' -d 'The version to write'
complete -c touchstone2 -n '__fish_seen_subcommand_from convert' -s o -l output -r -d 'The file to write, or - for standard output'
complete -c touchstone2 -n '__fish_seen_subcommand_from convert' -l force -d 'Replace OUT if it exists'
complete -c touchstone2 -n '__fish_seen_subcommand_from convert' -l precision -x -a 'auto' -d 'Significant digits: auto, or a number from 1 to 17'

complete -c touchstone2 -n '__fish_seen_subcommand_from reorder' -s h -l help -d 'Print this help message and exit'
complete -c touchstone2 -n '__fish_seen_subcommand_from reorder' -l order -r -d 'All ports in their new order, as 4,3,2,1'
complete -c touchstone2 -n '__fish_seen_subcommand_from reorder' -s o -l output -r -d 'The file to write, or - for standard output'
complete -c touchstone2 -n '__fish_seen_subcommand_from reorder' -l force -d 'Replace OUT if it exists'
complete -c touchstone2 -n '__fish_seen_subcommand_from reorder' -l precision -x -a 'auto' -d 'Significant digits: auto, or a number from 1 to 17'

complete -c touchstone2 -n '__fish_seen_subcommand_from subset' -s h -l help -d 'Print this help message and exit'
complete -c touchstone2 -n '__fish_seen_subcommand_from subset' -l ports -r -d 'Ports and their new names, as 1=in,3=out'
complete -c touchstone2 -n '__fish_seen_subcommand_from subset' -s o -l output -r -d 'The file to write, or - for standard output'
complete -c touchstone2 -n '__fish_seen_subcommand_from subset' -l force -d 'Replace OUT if it exists'
complete -c touchstone2 -n '__fish_seen_subcommand_from subset' -l precision -x -a 'auto' -d 'Significant digits: auto, or a number from 1 to 17'
