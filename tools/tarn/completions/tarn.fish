# Completion of tarn for fish.

# The titles or tags in what the program prints, run on the store that the command line names, without a word should it
# fail. What holds control characters could not be typed.
function __tarn_ask
    set -l words (commandline -opc)
    set -l call (string unescape -- $words[1])
    if set -l place (contains -i -- --store $words)
        set -a call --store (string replace -r '^~/' "$HOME/" -- (string unescape -- $words[(math $place + 1)]))
    end
    command $call --json $argv </dev/null 2>/dev/null |
        sed -nE 's/^ *"title": "(([^\\\\]|\\\\["\\\\])+)",$/\1/p' | sed -E 's/\\\\(.)/\1/g'
end

function __tarn_tags
    __tarn_ask tags --all
end

# Titles with what is typed; of many the pinned ones and the latest modified.
function __tarn_notes
    set -l query (string match -ra '[\p{L}\p{N}]+' -- (commandline -ct) | string match -vi or)
    if set -q query[1]
        __tarn_ask search --all --limit 1000 -- "@title $query" | string match -v -- '-*'
    else
        __tarn_ask list --filter all --limit 200 | string match -v -- '-*'
    end
end

# The command and how many arguments stand behind it: "tag 2".
function __tarn_place
    set -l arguments
    set -l isValue no
    for word in (commandline -opc)[2..-1]
        if test $isValue = yes
            set isValue no
            continue
        end
        switch $word
            case --store --password-file --new-password-file --password --memory --header --tag --query
                set isValue yes
            case '-*'
            case '*'
                set -a arguments $word
        end
    end
    echo "$arguments[1] "(math (count $arguments) - 1)
end

function __tarn_takes_note
    string match -rq '^((show|append|prepend|replace|edit|duplicate|links|backlinks|url|conflicts|files|attach) 0|(file|conflict) 1|export [1-9].*|tag ([2-9]|\d\d+)|(merge|trash|restore|archive|unarchive|pin|unpin|readonly|editable|delete|protect|unprotect) .*)$' -- (__tarn_place)
end

function __tarn_takes_tag
    string match -q 'tag 1' -- (__tarn_place)
end

set -l commands import new show append prepend replace edit duplicate merge list search predicate highlight tags tag links backlinks unresolved orphans url conflicts conflict trash restore archive unarchive pin unpin readonly editable delete protect unprotect passwords password attach files file thumb export backup restore-backup changes baseline stats doctor migrate parse

complete -c tarn -f
complete -c tarn -l store -r -a '(__fish_complete_directories)' -d 'The folder of the store'
complete -c tarn -l password-file -r -F -d 'A file whose first line is the password of protected notes'
complete -c tarn -l json -d 'Print one JSON document'
complete -c tarn -l help -s h -d 'Print help and end'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -l version -d 'Print the version and end'

complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a import -d 'Make notes of Markdown and text files'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a new -d 'Write a note'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a show -d 'Print the text of a note'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a append -d 'Add text at the end of a note'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a prepend -d 'Add text at the beginning of a note'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a replace -d 'Replace the text of a note'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a edit -d 'Open a note in the editor'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a duplicate -d 'Make a copy of a note'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a merge -d 'Make one note of several'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a list -d 'List notes'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a search -d 'Find notes by words, phrases, tags, dates and states'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a predicate -d 'Print the predicate that a search compiles to'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a highlight -d 'Print what a search highlights in a note'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a tags -d 'Show the tree of tags'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a tag -d 'Add, remove, rename, delete, pin and prune tags'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a links -d 'Show the links that a note holds'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a backlinks -d 'List the notes that link to a note'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a unresolved -d 'Show links that lead to no note'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a orphans -d 'List notes without links'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a url -d 'Print the URL that opens a note or a tag'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a conflicts -d 'List notes of which several versions were kept'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a conflict -d 'Resolve a conflict'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a trash -d 'Move notes to the trash'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a restore -d 'Take notes out of the trash'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a archive -d 'Move notes to the archive'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a unarchive -d 'Take notes out of the archive'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a pin -d 'Keep notes on top of the list'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a unpin -d 'No longer keep notes on top'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a readonly -d 'Protect notes from being edited'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a editable -d 'Let notes be edited again'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a delete -d 'Delete notes for good'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a protect -d 'Protect notes, with their attachments, by a password'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a unprotect -d 'Take the protection off notes'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a passwords -d 'List the passwords'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a password -d 'Add, change, rotate and delete passwords'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a attach -d 'Attach files to a note'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a files -d 'List attachments'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a file -d 'Rename attachments, and delete unused ones'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a thumb -d 'Make or find a thumbnail of a picture'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a export -d 'Write notes as Markdown files, with their attachments'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a backup -d 'Write the whole store into one file'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a restore-backup -d 'Bring a backup back into the store'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a changes -d 'List what was saved since a token'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a baseline -d 'Fold the change log into one change'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a stats -d 'Count what is in the store'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a doctor -d 'Examine the store'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a migrate -d 'Bring an old store forward to the current version'
complete -c tarn -n "not __fish_seen_subcommand_from $commands" -a parse -d 'Show what the Markdown parser sees'

complete -c tarn -n __tarn_takes_note -a '(__tarn_notes)'
complete -c tarn -n __tarn_takes_tag -a '(__tarn_tags)'
complete -c tarn -n '__fish_seen_subcommand_from import parse attach thumb export backup restore-backup' -F
complete -c tarn -n '__fish_seen_subcommand_from import' -l tag -x -a '(__tarn_tags)' -d 'Add this tag to every note'
complete -c tarn -n '__fish_seen_subcommand_from import' -l titles -x -a 'auto text file unique' -d 'Where titles come from'
complete -c tarn -n '__fish_seen_subcommand_from import' -l links -x -a 'wiki keep' -d 'Links between the files'
complete -c tarn -n '__fish_seen_subcommand_from import' -l folders-as-tags -d 'Add the path of its folder as a tag'
complete -c tarn -n '__fish_seen_subcommand_from import' -l moved-from -r -a '(__fish_complete_directories)' -d 'Where it lay before'
complete -c tarn -n '__fish_seen_subcommand_from import' -l verbose -d 'Name each file that was skipped'
complete -c tarn -n '__fish_seen_subcommand_from import' -l dry-run -d 'Write nothing'
complete -c tarn -n '__fish_seen_subcommand_from files' -l to-upload -d 'Only those that the server does not have'
complete -c tarn -n '__fish_seen_subcommand_from files' -l to-download -d 'Only those that only the server has'
complete -c tarn -n '__fish_seen_subcommand_from files' -l unused -d 'Only those that no text names'
complete -c tarn -n '__fish_seen_subcommand_from file' -a 'rename prune'
complete -c tarn -n '__fish_seen_subcommand_from file' -l dry-run -d 'Delete nothing'
complete -c tarn -n '__fish_seen_subcommand_from thumb' -l size -x -d 'The size in pixels, as 200x150'
complete -c tarn -n '__fish_seen_subcommand_from thumb' -l contain -d 'Exactly of the size, with room beside the picture'
complete -c tarn -n '__fish_seen_subcommand_from thumb' -l cover -d 'Exactly of the size, filled by the picture'
complete -c tarn -n '__fish_seen_subcommand_from thumb' -l no-ratio -d 'Stretch the picture'
complete -c tarn -n '__fish_seen_subcommand_from thumb' -l align -x -d 'Where the picture lies, as 0.5,1'
complete -c tarn -n '__fish_seen_subcommand_from thumb' -l trim -d 'Cut transparent rows away'
complete -c tarn -n '__fish_seen_subcommand_from thumb' -l background -x -d 'Paint this colour under it'
complete -c tarn -n '__fish_seen_subcommand_from thumb' -l output -r -F -d 'Write it to this file'
complete -c tarn -n '__fish_seen_subcommand_from export' -l all -d 'Archived, trashed, and unused attachments as well'
complete -c tarn -n '__fish_seen_subcommand_from export' -l layout -x -a 'flat tags source' -d 'Folders'
complete -c tarn -n '__fish_seen_subcommand_from export' -l links -x -a 'wiki files' -d 'Links between notes'
complete -c tarn -n '__fish_seen_subcommand_from backup' -l yes -d 'Replace a file without asking'
complete -c tarn -n '__fish_seen_subcommand_from restore-backup' -l verify -d 'Only examine the backup'
complete -c tarn -n '__fish_seen_subcommand_from restore-backup' -l salvage -d 'Restore what is whole of a damaged one'
complete -c tarn -n '__fish_seen_subcommand_from list' -l filter -x -a 'active trashed archived pinned conflicted encrypted all' -d 'Which notes'
complete -c tarn -n '__fish_seen_subcommand_from list' -l tag -x -a '(__tarn_tags)' -d 'Only notes with this tag'
complete -c tarn -n '__fish_seen_subcommand_from list search' -l limit -x -d 'At most so many notes'
complete -c tarn -n '__fish_seen_subcommand_from list search' -l sort -x -a 'modified created title' -d 'In this order'
complete -c tarn -n '__fish_seen_subcommand_from list search' -l reverse -d 'The last note first'
complete -c tarn -n '__fish_seen_subcommand_from list search' -l since -x -d 'Only notes changed since this day'
complete -c tarn -n '__fish_seen_subcommand_from list search' -l null -s 0 -d 'A NUL behind each note'
complete -c tarn -n '__fish_seen_subcommand_from search' -l count -d 'Print how many notes there are'
complete -c tarn -n '__fish_seen_subcommand_from search' -l explain -d 'Tell how the store finds them'
complete -c tarn -n '__fish_seen_subcommand_from search' -l all -d 'Look into archive and trash as well'
complete -c tarn -n '__fish_seen_subcommand_from search predicate' -l ocr -d 'Look into the recognised text of attachments as well'
complete -c tarn -n '__fish_seen_subcommand_from changes' -l since -x -d 'Only what was saved after this change'
complete -c tarn -n '__fish_seen_subcommand_from tags' -l all -d 'Also tags without active notes'
complete -c tarn -n '__fish_seen_subcommand_from tag' -a 'add remove rename delete pin unpin prune'
complete -c tarn -n '__fish_seen_subcommand_from tag' -l top -d 'Write the hashtag below the title'
complete -c tarn -n '__fish_seen_subcommand_from conflict' -a resolve -d 'Keep one version of a note'
complete -c tarn -n '__fish_seen_subcommand_from url' -l title -d 'Name the note by its title'
complete -c tarn -n '__fish_seen_subcommand_from url' -l new-window -d 'Open it in a window of its own'
complete -c tarn -n '__fish_seen_subcommand_from url' -l header -x -d 'Open it at this heading'
complete -c tarn -n '__fish_seen_subcommand_from url' -l tag -x -a '(__tarn_tags)' -d 'Open this tag'
complete -c tarn -n '__fish_seen_subcommand_from append prepend replace edit duplicate merge tag attach file conflict trash restore archive unarchive pin unpin readonly editable delete protect unprotect' -l latest -d 'Of several notes with one title take the latest modified'
complete -c tarn -n '__fish_seen_subcommand_from edit' -l allow-empty -d 'Save also a text that came back empty'
complete -c tarn -n '__fish_seen_subcommand_from protect' -l password -x -d 'Of several passwords this one'
complete -c tarn -n '__fish_seen_subcommand_from protect password' -l memory -x -d 'Memory in MiB that each try of the password takes'
complete -c tarn -n '__fish_seen_subcommand_from password' -a 'add change rotate delete'
complete -c tarn -n '__fish_seen_subcommand_from password' -l hint -x -d 'What reminds of it'
complete -c tarn -n '__fish_seen_subcommand_from password' -l new-password-file -r -F -d 'A file whose first line is the new password'
complete -c tarn -n '__fish_seen_subcommand_from edit' -l create -d 'Make a note of this title where there is none'
complete -c tarn -n '__fish_seen_subcommand_from replace' -l whole -d 'Replace everything, a heading and the tags included'
complete -c tarn -n '__fish_seen_subcommand_from tag trash restore archive unarchive pin unpin readonly editable delete' -l query -x -d 'All notes that this search finds'
complete -c tarn -n '__fish_seen_subcommand_from tag trash archive pin unpin readonly editable delete' -l all -d 'With --query, look into archive and trash as well'
complete -c tarn -n '__fish_seen_subcommand_from tag trash restore archive unarchive pin unpin readonly editable delete password' -l yes -d 'Do not ask'
complete -c tarn -n '__fish_seen_subcommand_from doctor' -l repair -d 'Derive wrong fields anew'
complete -c tarn -n '__fish_seen_subcommand_from migrate' -l dry-run -d 'Change nothing'
