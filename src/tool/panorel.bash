# SPDX-License-Identifier: MIT
# Completion of the command "panorel" for bash.

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
        [help]=""
    )

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
    elif [[ $command == help ]]; then
        mapfile -t COMPREPLY < <(compgen -W "${!options[*]}" -- "$current")
    fi
}

# What is left empty is completed as a file's name.
complete -o default -F _panorel panorel
