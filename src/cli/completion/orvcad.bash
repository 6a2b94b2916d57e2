# Completion of orvcad for bash: the command itself tells what may follow.

_orvcad() {
    local word line ending current=${COMP_WORDS[COMP_CWORD]}
    local -a words=()
    for word in "${COMP_WORDS[@]:1:COMP_CWORD}"; do
        word=${word//[\"\'\\]/} # as the shell would read it: names with blanks stand in quotes
        words+=("${word/#\~\//$HOME/}")
    done
    COMPREPLY=()
    compopt -o nosort 2>/dev/null # in the order of the command: floors from the lowest up
    while IFS= read -r line; do
        if [[ $line == :files* ]]; then
            ending=${line#:files}
            ending=${ending# }
            compopt -o filenames 2>/dev/null
            while IFS= read -r word; do
                [[ -d ${word/#\~\//$HOME/} || $word == *"$ending" ]] && COMPREPLY+=("$word")
            done < <(compgen -f -- "$current")
        elif [[ $current == [\"\']* ]]; then
            COMPREPLY+=("${line%%$'\t'*}") # inside a quote
        else
            COMPREPLY+=("$(printf '%q' "${line%%$'\t'*}")")
        fi
    done < <("${COMP_WORDS[0]/#\~\//$HOME/}" complete -- "${words[@]}" 2>/dev/null)
}
complete -F _orvcad orvcad
