# Completion of tarn for fish.

set -l commands import new show list search tags trash restore archive unarchive pin unpin readonly editable delete stats doctor parse

complete -c tarn -f
complete -c tarn -l store -r -a '(__fish_complete_directories)' -d 'The folder of the store'
complete -c tarn -l json -d 'Print one JSON document'
complete -c tarn -l help -s h -d 'Print help and end'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -l version -d 'Print the version and end'

complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a import -d 'Make notes of Markdown and text files'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a new -d 'Write a note'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a show -d 'Print the text of a note'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a list -d 'List notes'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a search -d 'Find notes by their words and tags'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a tags -d 'Show the tree of tags'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a trash -d 'Move notes to the trash'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a restore -d 'Take notes out of the trash'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a archive -d 'Move notes to the archive'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a unarchive -d 'Take notes out of the archive'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a pin -d 'Keep notes on top of the list'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a unpin -d 'No longer keep notes on top'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a readonly -d 'Protect notes from being edited'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a editable -d 'Let notes be edited again'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a delete -d 'Delete notes for good'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a stats -d 'Count what is in the store'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a doctor -d 'Examine the store'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a parse -d 'Show what the Markdown parser sees'

complete -c tarn -n '__fish_seen_subcommand_from import parse' -F
complete -c tarn -n '__fish_seen_subcommand_from import' -l tag -x -d 'Add this tag to every note'
complete -c tarn -n '__fish_seen_subcommand_from import' -l dry-run -d 'Write nothing'
complete -c tarn -n '__fish_seen_subcommand_from list' -l filter -x -a 'active trashed archived pinned conflicted encrypted all' -d 'Which notes'
complete -c tarn -n '__fish_seen_subcommand_from list' -l tag -x -d 'Only notes with this tag'
complete -c tarn -n '__fish_seen_subcommand_from list search' -l limit -x -d 'At most so many notes'
complete -c tarn -n '__fish_seen_subcommand_from search' -l count -d 'Print how many notes there are'
complete -c tarn -n '__fish_seen_subcommand_from search' -l explain -d 'Tell how the store finds them'
complete -c tarn -n '__fish_seen_subcommand_from search' -l all -d 'Look into archive and trash as well'
complete -c tarn -n '__fish_seen_subcommand_from tags' -l all -d 'Also tags without active notes'
complete -c tarn -n '__fish_seen_subcommand_from delete' -l yes -d 'Do not ask'
complete -c tarn -n '__fish_seen_subcommand_from doctor' -l repair -d 'Derive wrong fields anew'
