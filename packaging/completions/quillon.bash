# Completion of quillon(1) in bash.
_quillon() {
    local words=
    case $COMP_CWORD in
    1)
        words='send panel settings connect find-group create-topics rename-topics forget status
            history launch-at-login check-for-updates uninstall --help --version'
        ;;
    2)
        case ${COMP_WORDS[1]} in
        status | history) words=--json ;;
        launch-at-login) words='on off status' ;;
        check-for-updates) words=--install ;;
        uninstall) words=--yes ;;
        esac
        ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "${COMP_WORDS[COMP_CWORD]}")
}
complete -F _quillon quillon
