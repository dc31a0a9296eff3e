#!/bin/bash
# Makes the pictures of abbildungen.md with the commands that stand there.
#   abbildungen.sh [FOLDER OF THE PROGRAMS [FOLDER OF THE PICTURES]]
set -euo pipefail
docs=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
programs=$(readlink -f -- "${1:-$docs/../build/release/bin}")
cd -- "${2:-$docs/bilder}"
PATH=$programs:$PATH
while read -r -a words; do
    echo "${words[*]}"
    "${words[@]}"
done < <(grep '^    zerna-cli ' "$docs/abbildungen.md")
