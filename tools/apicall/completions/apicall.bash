# bash completion for apicall: options, calls and arguments.
_apicall() {
    local current=${COMP_WORDS[COMP_CWORD]} call= word i
    for ((i = 1; i < COMP_CWORD; ++i)); do
        word=${COMP_WORDS[i]}
        case $word in
            -s | --server | -t | --token | --pin | --ca | --language | --server-id | --timeout) ((++i)) ;;
            -*) ;;
            *.*) call=${call:-$word} ;;
        esac
    done
    if [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(LANGUAGE=en "$1" --help | grep --only-matching -E -e '--[a-z-]+' | sort --unique)" -- "$current")
    elif [[ -z $call ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$("$1" --names)" -- "$current")
    else
        mapfile -t COMPREPLY < <(compgen -W "$("$1" --names "$call" 2>/dev/null)" -S = -- "$current")
        compopt -o nospace 2>/dev/null
    fi
}
complete -F _apicall apicall
