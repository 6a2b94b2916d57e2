# Completion of orvcad for bash: the command itself tells what may follow.

_orvcad() {
    local word line ending current=${COMP_WORDS[COMP_CWORD]}
    local -a words=()
    for word in "${COMP_WORDS[@]:1:COMP_CWORD}"; do
        words+=("${word//[\"\'\\]/}") # as the shell would read it: names with blanks stand in quotes
    done
    COMPREPLY=()
    while IFS= read -r line; do
        if [[ $line == :files* ]]; then
            ending=${line#:files}
            ending=${ending# }
            compopt -o filenames 2>/dev/null
            while IFS= read -r word; do
                [[ -d $word || $word == *"$ending" ]] && COMPREPLY+=("$word")
            done < <(compgen -f -- "$current")
        elif [[ $current == [\"\']* ]]; then
            COMPREPLY+=("${line%%$'\t'*}") # inside a quote
        else
            COMPREPLY+=("$(printf '%q' "${line%%$'\t'*}")")
        fi
    done < <("${COMP_WORDS[0]}" complete -- "${words[@]}" 2>/dev/null)
}
complete -F _orvcad orvcad
