# SPDX-License-Identifier: MIT
# Completion of the command "panorel" for bash.

_panorel_launchers()
{
    local data folders
    IFS=: read -r -a folders <<<"${XDG_DATA_HOME:-$HOME/.local/share}:${XDG_DATA_DIRS:-/usr/local/share:/usr/share}"
    for data in "${folders[@]}"; do
        compgen -G "$data/applications/*.desktop" | sed 's|.*/||'
    done | sort -u
}

# After the options comes a program, and what it takes.
_panorel_run()
{
    local word=2
    while [[ $word -lt $COMP_CWORD && ${COMP_WORDS[word]} == -* ]]; do
        word=$((word + 1))
    done
    if ((word < COMP_CWORD)); then
        return
    elif [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "--help --version ${options[run]}" -- "$current")
    else
        mapfile -t COMPREPLY < <(compgen -c -- "$current")
    fi
}

_panorel()
{
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local command=${COMP_WORDS[1]} choosing="--group --view --current --window --max-size"
    local -A options=(
        [check]="--quiet --json $choosing"
        [show]="--json $choosing"
        [diff]="--json --with $choosing"
        [render]="-o --size --dark $choosing"
        [tidy]="-o --keep-nameless --drop-unsound --window --max-size"
        [copy]="-o --group --view --replace --keep-both --max-size"
        [rename]="-o --group --view --window --to --max-size"
        [move]="-o --group --view --before --last --max-size"
        [remove]="-o --group --view --max-size"
        [run]="--merge --list"
        [install-launcher]="--merge --remove"
        [help]=""
    )

    if [[ $command == run ]] && ((COMP_CWORD > 1)); then
        _panorel_run
        return
    fi
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W "${!options[*]} --help --version" -- "$current")
        return
    fi
    case $previous in
    --group | --view | --with | --window | --before | --to | --size | --max-size)
        return
        ;;
    esac
    if [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "--help --version ${options[$command]-}" -- "$current")
    elif [[ $command == install-launcher ]]; then
        mapfile -t COMPREPLY < <(_panorel_launchers | grep -F -- "$current")
    elif [[ $command == help ]]; then
        mapfile -t COMPREPLY < <(compgen -W "${!options[*]}" -- "$current")
    fi
}

# What is left empty is completed as a file's name.
complete -o default -F _panorel panorel
