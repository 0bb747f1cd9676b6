# Completion of quillon(1) in bash: the program knows what may follow.
_quillon() {
    local words word=${COMP_WORDS[COMP_CWORD]}
    words=$("$1" --complete "${COMP_WORDS[@]:1:COMP_CWORD-1}" 2>/dev/null | cut -f 1)
    # FILE stands for the names of files.
    local others=${words/%FILE/}
    mapfile -t COMPREPLY < <(compgen -W "$others" -- "$word")
    [ "$others" != "$words" ] || return 0
    compopt -o filenames 2>/dev/null
    mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -f -- "$word")
}
complete -F _quillon quillon
