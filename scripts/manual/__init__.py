"""Man pages and shell completions made from what the tool says of its commands."""
