# Completion of quillon(1) in bash: the program knows what may follow.
_quillon() {
    local words
    words=$("$1" --complete "${COMP_WORDS[@]:1:COMP_CWORD-1}" 2>/dev/null | cut -f 1)
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "${COMP_WORDS[COMP_CWORD]}")
}
complete -F _quillon quillon
