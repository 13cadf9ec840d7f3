touchstone2 reorder --help
