# Completion of tarn for bash.

_tarn()
{
    local commands="import new show append prepend replace edit duplicate merge list search predicate highlight tags tag links backlinks
        unresolved orphans url conflicts conflict trash restore archive unarchive pin unpin readonly editable delete
        protect unprotect passwords password
        attach files file thumb export backup restore-backup changes baseline stats doctor migrate parse"
    local global="--store --json --password-file --help --version"
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command="" word index
    COMPREPLY=()

    for ((index = 1; index < COMP_CWORD; index++)); do
        word=${COMP_WORDS[index]}
        case $word in
            --store | --password-file) ((index++)) ;;
            -*) ;;
            *) command=$word; break ;;
        esac
    done

    case $previous in
        --store) mapfile -t COMPREPLY < <(compgen -d -- "$current"); return ;;
        --filter) mapfile -t COMPREPLY < <(compgen -W "active trashed archived pinned conflicted encrypted all" -- "$current"); return ;;
        --output | --password-file | --new-password-file) mapfile -t COMPREPLY < <(compgen -f -- "$current"); return ;;
        --tag | --limit | --password | --memory | --hint | --header | --since | --size | --align | --background) return ;;
        tag) [[ $command == tag ]] && { mapfile -t COMPREPLY < <(compgen -W "add remove rename delete pin unpin prune" -- "$current"); return; } ;;
        password) [[ $command == password ]] && { mapfile -t COMPREPLY < <(compgen -W "add change rotate delete" -- "$current"); return; } ;;
        file) [[ $command == file ]] && { mapfile -t COMPREPLY < <(compgen -W "rename prune" -- "$current"); return; } ;;
        conflict) [[ $command == conflict ]] && { mapfile -t COMPREPLY < <(compgen -W "resolve" -- "$current"); return; } ;;
    esac

    local options=""
    case $command in
        "") options="$commands $global" ;;
        import) options="--tag --verbose --dry-run" ;;
        list) options="--filter --tag --limit" ;;
        search) options="--limit --count --explain --all --ocr" ;;
        predicate) options="--ocr" ;;
        tags) options="--all" ;;
        tag) options="--top --yes --latest" ;;
        edit) options="--allow-empty --latest" ;;
        files) options="--to-upload --to-download --unused" ;;
        file) options="--latest --dry-run" ;;
        thumb) options="--size --contain --cover --no-ratio --align --trim --background --output" ;;
        export) options="--all" ;;
        append | prepend | replace | duplicate | merge | attach | conflict | trash | restore | archive | unarchive | pin | unpin | readonly | editable)
            options="--latest" ;;
        url) options="--title --new-window --header --tag" ;;
        delete) options="--yes --latest" ;;
        protect) options="--password --memory --latest" ;;
        unprotect) options="--latest" ;;
        password) options="--hint --memory --new-password-file --yes" ;;
        backup) options="--yes" ;;
        restore-backup) options="--verify --salvage" ;;
        changes) options="--since" ;;
        doctor) options="--repair" ;;
        migrate) options="--dry-run" ;;
    esac
    if [[ -z $command || $current == -* ]]; then
        [[ -n $command ]] && options="$options $global"
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
    elif [[ $command == import || $command == parse || $command == attach || $command == thumb || $command == export
        || $command == backup || $command == restore-backup ]]; then
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    fi
}

complete -o filenames -F _tarn tarn
