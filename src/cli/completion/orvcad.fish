# Completion of orvcad for fish: the command itself tells what may follow.

function __orvcad_complete
    set -l words (commandline -opc) (commandline -ct)
    for line in ($words[1] complete -- $words[2..-1] 2>/dev/null)
        switch $line
            case ':files*'
                set -l ending (string replace -r '^:files ?' '' -- $line)
                for file in (commandline -ct)*
                    if test -d $file
                        echo $file/
                    else if string match -q -- "*$ending" $file
                        echo $file
                    end
                end
            case '*'
                echo $line
        end
    end
end

complete -c orvcad -f -a '(__orvcad_complete)'
