# Completion of tarn for bash.

# A part of the command line as the program would get it: quotes and backslashes taken off, the last word of it. In REPLY,
# and in quote the quotation mark that is still open.
_tarn_unquoted()
{
    local text=$1 letter index
    REPLY="" quote=""
    for ((index = 0; index < ${#text}; index++)); do
        letter=${text:index:1}
        case $quote$letter in
            \'\' | '""') quote="" ;;
            \'?*) REPLY+=$letter ;;
            '"\') ((index++)); REPLY+=${text:index:1} ;;
            '"'?*) REPLY+=$letter ;;
            \\) ((index++)); REPLY+=${text:index:1} ;;
            [\'\"]) quote=$letter ;;
            ' ') REPLY="" ;;
            *) REPLY+=$letter ;;
        esac
    done
}

# The titles or tags in what the program prints. What holds control characters could not be typed.
_tarn_titles_in_json()
{
    sed -nE 's/^ *"title": "(([^\\]|\\["\\])+)",$/\1/p' | sed -E 's/\\(.)/\1/g'
}

# Runs the program on the store that the command line names, without a word should it fail.
_tarn_ask()
{
    local call=("${COMP_WORDS[0]}") REPLY quote index
    for ((index = 1; index < COMP_CWORD; index++)); do
        if [[ ${COMP_WORDS[index]} == --store ]]; then
            _tarn_unquoted "${COMP_WORDS[index + 1]}"
            call+=(--store "${REPLY/#\~\//$HOME/}")
        fi
    done
    "${call[@]}" --json "$@" </dev/null 2>/dev/null | _tarn_titles_in_json
}

# Titles that begin with what is typed; of many the pinned ones and the latest modified.
_tarn_titles()
{
    local word query=""
    for word in ${1//[^[:alnum:]]/ }; do
        [[ ${word,,} == or ]] || query+=" $word"
    done
    if [[ -n $query ]]; then
        _tarn_ask search --all --limit 1000 -- "@title$query"
    else
        _tarn_ask list --filter all --limit 200
    fi
}

# Offers the lines that begin with what is typed. Where readline breaks a word that the shell does not, as at ":", only
# what stands behind the break is completed. Quoted here, since readline leaves "$" in names of files alone.
_tarn_offer()
{
    local current=${COMP_WORDS[COMP_CWORD]} typed line REPLY quote
    [[ $current == [:=] ]] && current=""
    _tarn_unquoted "${COMP_LINE:0:COMP_POINT}"
    typed=$REPLY
    _tarn_unquoted "$current"
    [[ -n ${COMP_LINE-} ]] || typed=$REPLY
    local broken=$((${#typed} - ${#REPLY}))
    while IFS= read -r line; do
        [[ $line == "$typed"* && $line != -* ]] || continue
        line=${line:broken}
        case $quote in
            \') line=${line//\'/\'\\\'\'} ;;
            \") line=$(sed 's/[\\"$`]/\\&/g' <<<"$line") ;;
            *) printf -v line %q "$line" ;;
        esac
        COMPREPLY+=("$line")
    done < <("$@" "$typed")
    compopt +o filenames 2>/dev/null
}

_tarn_offer_notes() { _tarn_offer _tarn_titles; }
_tarn_offer_tags() { _tarn_offer _tarn_tags; }
_tarn_tags() { _tarn_ask tags --all; }

# What fits as an argument of the command, which the caller has found.
_tarn_offer_arguments()
{
    local position=0 place
    for ((place = index + 1; place < COMP_CWORD; place++)); do
        case ${COMP_WORDS[place]} in
            --store | --password-file | --new-password-file | --password | --memory | --header | --tag | --query) ((place++)) ;;
            -*) ;;
            [:=]*) ((position--)) ;; # readline breaks a word there, the shell does not
            *) ((position++)) ;;
        esac
    done
    [[ $current != [:=]* ]] || ((position--))
    case $command/$position in
        import/* | parse/* | backup/* | restore-backup/* | thumb/0 | export/0 | attach/[1-9]*)
            mapfile -t COMPREPLY < <(compgen -f -- "$current") ;;
        tag/1) _tarn_offer_tags ;;
        show/0 | append/0 | prepend/0 | replace/0 | edit/0 | duplicate/0 | links/0 | backlinks/0 | url/0 | conflicts/0 | \
            files/0 | attach/0 | file/1 | conflict/1 | export/* | merge/* | tag/* | trash/* | restore/* | archive/* | \
            unarchive/* | pin/* | unpin/* | readonly/* | editable/* | delete/* | protect/* | unprotect/*)
            _tarn_offer_notes ;;
    esac
}

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
        --titles) mapfile -t COMPREPLY < <(compgen -W "auto text file unique" -- "$current"); return ;;
        --links)
            local modes="wiki keep"
            [[ $command == export ]] && modes="wiki files"
            mapfile -t COMPREPLY < <(compgen -W "$modes" -- "$current")
            return
            ;;
        --layout) mapfile -t COMPREPLY < <(compgen -W "flat tags source" -- "$current"); return ;;
        --moved-from) mapfile -t COMPREPLY < <(compgen -d -- "$current"); return ;;
        --sort) mapfile -t COMPREPLY < <(compgen -W "modified created title" -- "$current"); return ;;
        --filter) mapfile -t COMPREPLY < <(compgen -W "active trashed archived pinned conflicted encrypted all" -- "$current"); return ;;
        --output | --password-file | --new-password-file) mapfile -t COMPREPLY < <(compgen -f -- "$current"); return ;;
        --tag) _tarn_offer_tags; return ;;
        --query | --limit | --password | --memory | --hint | --header | --since | --size | --align | --background) return ;;
        tag) [[ $command == tag ]] && { mapfile -t COMPREPLY < <(compgen -W "add remove rename delete pin unpin prune" -- "$current"); return; } ;;
        password) [[ $command == password ]] && { mapfile -t COMPREPLY < <(compgen -W "add change rotate delete" -- "$current"); return; } ;;
        file) [[ $command == file ]] && { mapfile -t COMPREPLY < <(compgen -W "rename prune" -- "$current"); return; } ;;
        conflict) [[ $command == conflict ]] && { mapfile -t COMPREPLY < <(compgen -W "resolve" -- "$current"); return; } ;;
    esac

    local options=""
    case $command in
        "") options="$commands $global" ;;
        import) options="--tag --titles --links --folders-as-tags --moved-from --verbose --dry-run" ;;
        list) options="--filter --tag --limit --sort --reverse --since --null" ;;
        search) options="--limit --count --explain --all --ocr --sort --reverse --since --null" ;;
        predicate) options="--ocr" ;;
        tags) options="--all" ;;
        tag) options="--top --query --all --yes --latest" ;;
        edit) options="--allow-empty --create --latest" ;;
        replace) options="--whole --latest" ;;
        files) options="--to-upload --to-download --unused" ;;
        file) options="--latest --dry-run" ;;
        thumb) options="--size --contain --cover --no-ratio --align --trim --background --output" ;;
        export) options="--all --layout --links" ;;
        append | prepend | duplicate | merge | attach | conflict) options="--latest" ;;
        restore | unarchive) options="--query --yes --latest" ;;
        url) options="--title --new-window --header --tag" ;;
        trash | archive | pin | unpin | readonly | editable | delete) options="--query --all --yes --latest" ;;
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
    else
        _tarn_offer_arguments
    fi
}

complete -o filenames -F _tarn tarn
