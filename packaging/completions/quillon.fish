# Completion of quillon(1) in fish.

# Whether what is typed follows one of these commands.
function __quillon_after
    set -l words (commandline -opc)
    test (count $words) -eq 2; and contains -- $words[2] $argv
end

function __quillon_first
    test (count (commandline -opc)) -eq 1
end

complete -c quillon -f
complete -c quillon -n __quillon_first -a send -d 'Send what is on the clipboard'
complete -c quillon -n __quillon_first -a panel -d 'Show the panel; starts Quillon if it is not running'
complete -c quillon -n __quillon_first -a settings -d 'Show the settings; starts Quillon if it is not running'
complete -c quillon -n __quillon_first -a connect -d 'Connect your bot; reads its token from standard input'
complete -c quillon -n __quillon_first -a find-group -d 'Find the group in which you wrote to the bot'
complete -c quillon -n __quillon_first -a create-topics -d 'Create the four topics, or find them again'
complete -c quillon -n __quillon_first -a rename-topics -d 'Give the topics the names set here'
complete -c quillon -n __quillon_first -a forget -d 'Forget the bot, the group and the topics'
complete -c quillon -n __quillon_first -a status -d 'Tell what is set up'
complete -c quillon -n __quillon_first -a history -d 'List what was sent, newest first'
complete -c quillon -n __quillon_first -a launch-at-login -d 'Open Quillon at login, or do not'
complete -c quillon -n __quillon_first -a check-for-updates -d 'Tell whether there is a newer version'
complete -c quillon -n __quillon_first -a uninstall -d 'Remove Quillon and all it has stored'
complete -c quillon -n __quillon_first -l help -d 'Print the commands'
complete -c quillon -n __quillon_first -l version -d 'Print the version'
complete -c quillon -n '__quillon_after status history' -l json -d 'Answer as JSON'
complete -c quillon -n '__quillon_after launch-at-login' -a on -d 'Open it'
complete -c quillon -n '__quillon_after launch-at-login' -a off -d 'Do not'
complete -c quillon -n '__quillon_after launch-at-login' -a status -d 'Tell which'
complete -c quillon -n '__quillon_after check-for-updates' -l install -d 'Install it too'
complete -c quillon -n '__quillon_after uninstall' -l yes -d 'Yes, remove it'
