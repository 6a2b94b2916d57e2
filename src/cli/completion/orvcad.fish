# Completion of orvcad for fish: the command itself tells what may follow.

function __orvcad_complete
    set -l current (commandline -ct)
    # The last word as the shell would read it, without a quote that is still open.
    set -l begun (commandline -opc) (string replace -r '^["\']' '' -- $current | string unescape)
    set begun (string replace -r '^~/' $HOME/ -- $begun)
    for line in ($begun[1] complete -- $begun[2..-1] 2>/dev/null)
        switch $line
            case ':files*'
                set -l ending (string replace -r '^:files ?' '' -- $line)
                for file in (complete -C "'' $current" | string replace -r '\t.*' '')
                    if string match -q -- '*/' $file; or string match -q -- "*$ending" $file
                        echo $file
                    end
                end
            case '*'
                echo $line
        end
    end
end

complete -c orvcad -f -k -a '(__orvcad_complete)' # in the order of the command: floors from the lowest up
