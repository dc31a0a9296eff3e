# bash completion for zerna-cli: commands, options, element symbols, quantities and files. Everything is asked of the
# program itself, so that nothing here can be out of date.

# What the help of a command has in a section, one word each.
_zerna_cli_help() { # section, command ...
    local section=$1
    shift
    "$_zerna_cli" "$@" --hilfe 2>/dev/null | sed -n "/^$section:/,/^\$/s/^  \([^ ]*\).*/\1/p"
}

_zerna_cli_options() { _zerna_cli_help Optionen "$@" | tr ',' '\n' | grep '^--'; }

# The option takes a value if its line of the help names one.
_zerna_cli_takes_value() { # option, command ...
    local option=$1
    shift
    "$_zerna_cli" "$@" --hilfe 2>/dev/null | grep -qE "^  $option [A-Z]+ "
}

# The typed names of the quantities of a kind: ergebnis, legierung, element.
_zerna_cli_quantities() {
    "$_zerna_cli" kennzahlen 2>/dev/null | awk -F '\t' -v kind="$1" 'index("," $5 ",", "," kind ",") { print $2 }'
}

_zerna_cli_symbols() { "$_zerna_cli" "${_zerna_cli_data[@]}" elemente auflisten 2>/dev/null | cut -f1; }

# Candidates that begin with the word; bash has already parted it at the signs that it breaks words at.
_zerna_cli_offer() { # words as lines, [end of each]
    local parted=''
    [[ $COMP_WORDBREAKS == *=* && $word == *=* ]] && parted=${word%=*}=
    [[ $COMP_WORDBREAKS == *:* && ${word#"$parted"} == *:* ]] && parted=${word%:*}:
    local IFS=$'\n' candidate
    for candidate in $(compgen -W "$1" -- "$word"); do
        COMPREPLY+=("${candidate#"$parted"}${2-}")
    done
    [[ -z ${2-} ]] || compopt -o nospace 2>/dev/null
}

_zerna_cli_files() { # endings as a pattern; none: all files
    local IFS=$'\n' file
    compopt -o filenames 2>/dev/null
    for file in $(compgen -f -- "$word"); do
        # shellcheck disable=SC2053 # a pattern
        [[ -d $file || -z ${1-} || ${file,,} == $1 ]] && COMPREPLY+=("$file")
    done
}

# A component SYMBOL=ATPROZENT[:dichte=…][:valenz=…], or a file that holds an alloy.
_zerna_cli_component() {
    local before=${word%"${word##*[:=]}"}
    case $before in
    *:dichte=) _zerna_cli_offer "$(printf "$before%s\n" amorph fluessig kristallin)" ;;
    *:valenz=) _zerna_cli_offer "$(printf "$before%s\n" s p d f)" ;;
    *=*:) _zerna_cli_offer "$(printf "$before%s\n" dichte valenz)" = ;;
    '')
        _zerna_cli_offer "$(_zerna_cli_symbols)" =
        ((${#COMPREPLY[@]})) && [[ -n $word ]] && return
        _zerna_cli_document_files
        ;;
    esac
}

_zerna_cli_document_files() {
    local IFS=$'\n' file
    for file in $(compgen -f -- "$word"); do
        case ${file,,} in
        *.zerna | *.png | *.svg | *.pdf) COMPREPLY+=("$(printf %q "$file")") ;;
        *) [[ -d $file ]] && COMPREPLY+=("$(printf %q "$file")/") ;;
        esac
    done
    compopt -o nospace 2>/dev/null
}

_zerna_cli_value() { # option, command
    case $1 in
    --groesse)
        case $2 in
        pse) _zerna_cli_offer "$(_zerna_cli_quantities element)" ;;
        bild) _zerna_cli_offer "$(_zerna_cli_quantities element; _zerna_cli_quantities legierung)" ;;
        *) _zerna_cli_offer "$(_zerna_cli_quantities legierung)" ;;
        esac
        ;;
    --zweite-groesse) _zerna_cli_offer "$(_zerna_cli_quantities legierung)" ;;
    --groessen)
        local chosen=${word%"${word##*,}"}
        _zerna_cli_offer "$(_zerna_cli_quantities ergebnis | sed "s/^/$chosen/")"
        ;;
    --variabel) _zerna_cli_offer "$(_zerna_cli_symbols)" ;;
    --art) _zerna_cli_offer $'konzentration\nternaer\nelemente\nmesskurve' ;;
    --dezimal) _zerna_cli_offer $'komma\npunkt' ;;
    --ausgabe | --ziel) _zerna_cli_files ;;
    --daten) _zerna_cli_files '*.dat' ;;
    esac
}

_zerna_cli_complete() {
    local _zerna_cli=${1/#\~/$HOME} word line previous='' command=() words i
    local _zerna_cli_data=()
    COMPREPLY=()
    # The words as the program gets them; bash parts them at = and :, too.
    line=${COMP_LINE:0:COMP_POINT}
    read -ra words <<<"$line"
    [[ $line == *[[:space:]] ]] && words+=('')
    word=${words[-1]}
    for ((i = 1; i < ${#words[@]} - 1; ++i)); do
        case ${words[i]} in
        --daten)
            _zerna_cli_data=(--daten "${words[i + 1]}")
            ((i + 1 < ${#words[@]} - 1)) && ((++i))
            ;;
        --daten=*) _zerna_cli_data=("${words[i]}") ;;
        -*) ;;
        *)
            ((${#command[@]} == 0)) || [[ ${command[*]} == elemente ]] && command+=("${words[i]}")
            ;;
        esac
    done
    ((${#words[@]} > 2)) && previous=${words[-2]}
    if [[ $word == --*=* && $COMP_WORDBREAKS == *=* ]] && _zerna_cli_takes_value "${word%%=*}" "${command[@]}"; then
        previous=${word%%=*}
        word=${word#*=}
    fi
    if [[ $previous == --* ]] && _zerna_cli_takes_value "$previous" "${command[@]}"; then
        _zerna_cli_value "$previous" "${command[0]-}"
    elif [[ $word == -* ]]; then
        _zerna_cli_offer "$(_zerna_cli_options "${command[@]}")"
    elif ((${#command[@]} == 0)) || [[ ${command[*]} == elemente ]]; then
        _zerna_cli_offer "$(_zerna_cli_help Befehle "${command[@]}")"
    elif [[ ${command[0]} == elemente || " ${words[*]} " == *' --stapel '* ]]; then
        _zerna_cli_files
    elif [[ $(_zerna_cli_help Argumente "${command[@]}") == komponenten ]]; then
        _zerna_cli_component
    fi
}

complete -F _zerna_cli_complete zerna-cli
