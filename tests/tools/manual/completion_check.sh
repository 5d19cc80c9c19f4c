#!/usr/bin/env bash
# The bash completion of unitechnik, run as bash runs it for a command line:
# first the commands and the tool's own options, as `unitechnik --help` lists
# them; after a command that command's options, as its --help lists them; the
# codes after --ignore, nothing after a number's option, and file names for
# the arguments.
#   completion_check.sh COMPLETION TOOL WORK_DIR
set -u
completion=$1
tool=$2
work=$3
failures=0

# shellcheck source=/dev/null
source "$completion" || { echo "cannot load $completion"; exit 1; }
rm -rf "$work" && mkdir -p "$work" && cd "$work" || exit 1
touch slab.json slab.uni other.txt

# What the completion offers for the words given, the last one being
# completed, sorted, on one line.
offered() {
    COMP_WORDS=("$@")
    COMP_CWORD=$(($# - 1))
    COMPREPLY=()
    _unitechnik
    printf '%s\n' "${COMPREPLY[@]}" | sed '/^$/d' | sort | tr '\n' ' '
}

sorted() {
    printf '%s\n' "$@" | sed '/^$/d' | sort | tr '\n' ' '
}

expect() {
    local what=$1 got=$2 wanted=$3
    if [ "$got" != "$wanted" ]; then
        echo "FAILED: $what"
        echo "  offered: $got"
        echo "  wanted:  $wanted"
        failures=$((failures + 1))
    else
        echo "ok: $what: $got"
    fi
}

# The options in the "Options:" part of a --help: "-o,--output FILE ..." gives
# -o and --output.
help_options() {
    "$tool" "$@" --help | sed -n '/^Options:/,/^$/p' | grep -E '^  -' | awk '{print $1}' | tr ',' '\n'
}

mapfile -t commands < <("$tool" --help | sed -n '/^Subcommands:/,/^$/p' | grep -E '^  [a-z]' | awk '{print $1}')
if [ "${#commands[@]}" -lt 7 ]; then
    echo "unitechnik --help lists only: ${commands[*]}"
    exit 1
fi
mapfile -t top_options < <(help_options)
expect "unitechnik <TAB>" "$(offered unitechnik '')" "$(sorted "${commands[@]}" "${top_options[@]}")"
expect "unitechnik b<TAB>" "$(offered unitechnik b)" "bom build "
expect "unitechnik --v<TAB>" "$(offered unitechnik --v)" "--version "

for command in "${commands[@]}"; do
    mapfile -t options < <(help_options "$command")
    expect "unitechnik $command -<TAB>" "$(offered unitechnik "$command" -)" "$(sorted "${options[@]}")"
done
expect "unitechnik convert slab.uni --<TAB>" "$(offered unitechnik convert slab.uni --)" \
    "--help --ignore --json --output --version "
expect "unitechnik check --ignore UT10<TAB>" "$(offered unitechnik check --ignore UT10)" \
    "UT101 UT102 UT103 UT104 UT105 UT106 "
expect "unitechnik convert --ignore text<TAB>" "$(offered unitechnik convert --ignore text)" "text-cut "
expect "unitechnik convert slab.uni --version <TAB>" "$(offered unitechnik convert slab.uni --version '')" ""
expect "unitechnik dump sl<TAB>" "$(offered unitechnik dump sl)" "slab.json slab.uni "
expect "unitechnik build slab.json -o o<TAB>" "$(offered unitechnik build slab.json -o o)" "other.txt "

if [ "$failures" -gt 0 ]; then
    echo "$failures of the completions differ"
    exit 1
fi
