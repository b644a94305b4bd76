#include "tarnmodel/search/Vocabulary.h"

#include "tarnmodel/platform/predicate/NSPredicate.h"

#include <algorithm>
#include <span>
#include <vector>

namespace tarn {

namespace {

using enum TermMatch;
using Form = FragmentForm;

// Where two languages have one word it stands there twice. Spellings with capitals match nothing that was typed, since
// words are brought to lower case first; they are kept. Negations are no mirror images, "@done" least of all: they are
// what the search field has always meant.
constexpr std::array kTerms{
    Term{{"@tagged", "@タグ付き", "@태그있음", "@теги", "@有标签", "@有標籤"}, Exact, Form::Raw, "( tags.@count != 0 )",
        "( tags.@count == 0 )"},
    Term{{"@untagged", "@タグなし", "@태그없음", "@безтегов", "@无标签", "@無標籤"}, Exact, Form::Normalised,
        "( tags.@count == 0 )", "( tags.@count != 0 )"},
    Term{{"@attachments", "@添付ファイル", "@첨부파일", "@вложения", "@附件", "@附件"}, Exact, Form::Wrapped,
        "( hasImages == YES OR hasFiles == YES )", "( hasImages == NO AND hasFiles == NO )"},
    Term{{"@images", "@画像", "@이미지", "@изображения", "@图片", "@影像"}, Exact, Form::Normalised,
        "( hasImages == YES )", "( hasImages == NO )"},
    Term{{"@files", "@ファイル", "@파일", "@файлы", "@文件", "@檔案"}, Exact, Form::Normalised, "( hasFiles == YES )",
        "( hasFiles == NO )"},
    Term{{"@task", "@タスク", "@작업", "@задача", "@任务", "@任務"}, Exact, Form::Wrapped,
        "( todoCompleted > 0 OR todoIncompleted > 0 )", "( todoCompleted == 0 AND todoIncompleted == 0 )"},
    Term{{"@done", "@完了", "@완료", "@сделано", "@完成", "@完成"}, Exact, Form::Wrapped,
        "( todoCompleted > 0 AND todoIncompleted == 0 )", "( todoCompleted > 0 AND todoIncompleted > 0 )"},
    Term{{"@locked", "@ロック", "@잠긴항목", "@Заблокировано", "@已加密", "@已鎖定"}, Exact, Form::Normalised,
        "( encrypted == YES )", "( encrypted == NO )"},
    Term{{"@todo", "@ToDo", "@해야할일", "@дело", "@待办", "@待辦事項"}, Exact, Form::Normalised,
        "( todoIncompleted > 0 )", "( todoIncompleted == 0 )"},
    Term{{"@code", "@コード", "@코드", "@код", "@代码", "@程式碼"}, Exact, Form::Normalised, "( hasSourceCode == YES )",
        "( hasSourceCode == NO )"},
    Term{{"@today", "@今日", "@오늘", "@сегодня", "@今天", "@今天"}, Exact, Form::Date},
    Term{{"@ctoday", "@今日作成されました", "@오늘생성됨", "@ссегодня", "@今天创建", "@今天創建"}, Exact, Form::Date},
    Term{{"@yesterday", "@昨日", "@어제", "@вчера", "@昨天", "@昨天"}, Exact, Form::Date},
    Term{{"@last", "@過去", "@과거", "@посл", "@前", "@過去"}, Prefix, Form::Date},
    Term{{"@created", "@作成済み", "@생성됨", "@создано", "@已创建", "@已建立"}, Prefix, Form::Date},
    // Takes no argument, but anything may follow.
    Term{{"@pinned", "@ピン留めしました", "@고정됨", "@прикреплено", "@置顶", "@已釘選"}, Prefix, Form::Wrapped,
        "( pinned == YES )", "( pinned == NO )"},
    Term{{"@date(", "@日付（", "@날짜(", "@дата(", "@日期（", "@日期（"}, Prefix, Form::Date},
    Term{{"@cdate(", "@作成日（", "@생성일(", "@сдата(", "@创建日期（", "@創建日期（"}, Prefix, Form::Date},
    Term{{"@title", "@タイトル", "@제목", "@заголовок", "@标题", "@標題"}, Exact, Form::None},
    Term{{"@untitled", "@無題", "@무제", "@безназвания", "@无标题", "@無標題"}, Exact, Form::Wrapped,
        "( (title == '') OR (title == nil) )", "( (title != '') AND (title != nil) )"},
    Term{{"@ocr"}, Exact, Form::None},
    Term{{"@backlinks", "@バックリンク", "@역방향링크", "", "@反向链接", "@反向連結"}, Exact, Form::Normalised,
        "( SUBQUERY(linkedBy, $note, $note.linkedBy.trashed == NO AND $note.linkedBy.archived == NO).@count != 0 )",
        "( SUBQUERY(linkedBy, $note ,$note.linkedBy.trashed == NO AND $note.linkedBy.archived == NO).@count == 0 )"},
    Term{{"@wikilinks", "@Wikiリンク", "@읽는시간", "", "@维基链接", "@Wiki連結"}, Exact, Form::Normalised,
        "( linkingTo.@count != 0 )", "( linkingTo.@count == 0 )"},
    // Not wrapped, so what is joined to the negation binds to its last clause alone.
    Term{{"@empty", "@空の", "@비어있는", "", "@空白", "@空的"}, Exact, Form::Normalised,
        "( title == nil OR title == '' ) AND ( subtitle == nil OR subtitle == '' ) AND ( hasFiles == NO AND hasImages "
        "== NO ) AND encrypted == NO",
        "( title != nil AND title != '' ) OR ( subtitle != nil AND subtitle != '' ) OR ( hasFiles == YES OR hasImages "
        "== YES ) AND encrypted == NO"},
    Term{{"@readonly", "@読み取り専用", "@읽기전용", "", "@只读", "@唯讀"}, Exact, Form::Normalised,
        "( locked == YES )", "( locked == NO )"},
};

struct Suffix {
    std::string_view spelling;
    std::string_view suffix;
};
constexpr std::string_view kEnglishSuffix = "days";
constexpr std::array kLastSuffixes{
    Suffix{"@過去", "日間"}, // also for Traditional Chinese, which has the same word
    Suffix{"@과거", "일"},
    Suffix{"@посл", "дн"},
    Suffix{"@前", "天"},
};
constexpr std::array kCreatedSuffixes{
    Suffix{"@作成済み", "日間"},
    Suffix{"@생성됨", "일"},
    Suffix{"@создано", "дн"},
    Suffix{"@已创建", "天"},
    Suffix{"@已建立", "天"},
};

std::string_view suffixIn(std::span<const Suffix> suffixes, std::string_view spelling)
{
    const auto found = std::ranges::find(suffixes, spelling, &Suffix::spelling);
    return found == suffixes.end() ? kEnglishSuffix : found->suffix;
}

bool isConstant(FragmentForm form)
{
    return form == Form::Raw || form == Form::Normalised || form == Form::Wrapped;
}

std::string finished(std::string_view fragment, FragmentForm form)
{
    if (!isConstant(form))
        return {};
    if (form == Form::Raw)
        return std::string(fragment);
    return fragmentInForm(NSPredicate::predicateWithFormat(fragment).predicateFormat(), form);
}

struct FinishedFragments {
    std::string plain;
    std::string negated;
};

/// In the order of the terms; made once.
const std::vector<FinishedFragments>& finishedFragments()
{
    static const std::vector<FinishedFragments> fragments = [] {
        std::vector<FinishedFragments> result;
        result.reserve(kTerms.size());
        for (const Term& term : kTerms)
            result.push_back({finished(term.fragment, term.form), finished(term.negatedFragment, term.form)});
        return result;
    }();
    return fragments;
}

} // namespace

std::string_view Term::matchingSpelling(std::string_view word) const noexcept
{
    for (const std::string_view spelling : spellings) {
        if (!spelling.empty() && (match == Exact ? word == spelling : word.starts_with(spelling)))
            return spelling;
    }
    return {};
}

std::span<const Term> termsOfSearches() noexcept
{
    return kTerms;
}

const Term* termOfWord(std::string_view word) noexcept
{
    if (!word.starts_with('@'))
        return nullptr;
    const auto found
        = std::ranges::find_if(kTerms, [word](const Term& term) { return !term.matchingSpelling(word).empty(); });
    return found == kTerms.end() ? nullptr : &*found;
}

const Term* termNamed(std::string_view name) noexcept
{
    const auto found = std::ranges::find(kTerms, name, &Term::name);
    return found == kTerms.end() ? nullptr : &*found;
}

std::string_view suffixOfLastDays(std::string_view spelling) noexcept
{
    return suffixIn(kLastSuffixes, spelling);
}

std::string_view suffixOfCreatedDays(std::string_view spelling) noexcept
{
    return suffixIn(kCreatedSuffixes, spelling);
}

std::optional<std::string_view> constantFragment(const Term& term, bool negated)
{
    if (!isConstant(term.form))
        return std::nullopt;
    const auto row = static_cast<std::size_t>(&term - kTerms.data());
    const FinishedFragments& fragments = finishedFragments().at(row);
    return negated ? fragments.negated : fragments.plain;
}

std::string fragmentInForm(std::string_view canonicalText, FragmentForm form)
{
    const bool isWrapped = form == Form::Wrapped || form == Form::Date;
    return isWrapped ? "( " + std::string(canonicalText) + " )" : std::string(canonicalText);
}

} // namespace tarn
