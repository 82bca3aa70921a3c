# bash completion for zarn-cli: the program itself tells what may follow, so that this is never out of date.

_zarn_cli()
{
    local word candidate words=() current=${COMP_WORDS[COMP_CWORD]}
    COMPREPLY=()
    # Words as the program will get them, without the quotes and backslashes that they were typed with.
    for word in "${COMP_WORDS[@]:1:COMP_CWORD}"; do
        word=${word#[\"\']}
        word=${word%[\"\']}
        words+=("${word//\\/}")
    done
    while IFS=$'\t' read -r candidate _; do
        case $candidate in
            :files) compopt -o default -o filenames ;;
            :folders) compopt -o dirnames -o filenames ;;
            *=) compopt -o nospace; COMPREPLY+=("$candidate") ;;
            *) [[ $current == [\"\']* ]] && COMPREPLY+=("$candidate") || COMPREPLY+=("$(printf %q "$candidate")") ;;
        esac
    done < <("${COMP_WORDS[0]}" --complete "${words[@]}" 2>/dev/null)
}

complete -F _zarn_cli zarn-cli
