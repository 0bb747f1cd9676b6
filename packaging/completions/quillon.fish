# Completion of quillon(1) in fish: the program knows what may follow.
function __quillon_candidates
    set -l words (commandline -opc)
    $words[1] --complete $words[2..] 2>/dev/null
end

# FILE stands for the names of files.
complete -c quillon -f -a '(__quillon_candidates | string match -rv "^FILE\t")'
complete -c quillon -n '__quillon_candidates | string match -rq "^FILE\t"' -F
