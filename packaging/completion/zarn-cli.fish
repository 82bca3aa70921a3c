# fish completion for zarn-cli: the program itself tells what may follow, so that this is never out of date.

function __zarn_cli_complete
    set -l words (commandline -opc)
    set -l current (commandline -ct | string unescape)
    test -n "$current"; or set current ''
    for line in ($words[1] --complete $words[2..-1] "$current" 2>/dev/null)
        switch $line
            case :files
                __fish_complete_path "$current"
            case :folders
                __fish_complete_directories "$current"
            case '*'
                printf '%s\n' $line
        end
    end
end

complete -c zarn-cli -f -a '(__zarn_cli_complete)'
