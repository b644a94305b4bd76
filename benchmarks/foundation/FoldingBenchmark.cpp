// Folding by kinds of text, beside the plain chain of ICU on the same text; bytes of source a second.

#include "tarnmodel/platform/foundation/text/FoldingInternal.h"

#include <benchmark/benchmark.h>

#include <string>
#include <string_view>

using namespace tarn;

namespace {

/// About the length of a note.
constexpr std::size_t kTextSize = 2'600;

std::string repeated(std::string_view paragraph)
{
    std::string text;
    while (text.size() < kTextSize)
        text += paragraph;
    return text;
}

const std::string& asciiText()
{
    static const std::string text
        = repeated("# Moving house\n\n- [ ] Call the Landlord about the keys\n- [x] Boxes, Tape"
                   " and a Marker\n\nThe van comes on Saturday at 9:30, see [[Rental van]].\n");
    return text;
}

const std::string& typographicText()
{
    static const std::string text = repeated("It’s “only” a draft — the Editor wants it by Friday… and nothing else "
                                             "on this Page is out of the ordinary, as you can see for yourself.\n");
    return text;
}

const std::string& germanText()
{
    static const std::string text = repeated("Über die Straße gehört täglich ein Gruß, Jürgen! Möbel, Öfen und Äpfel "
                                             "müssen am Samstag ins neue Haus, das ist größer als gedacht.\n");
    return text;
}

const std::string& vietnameseText()
{
    static const std::string text
        = repeated("Hôm nay trời đẹp, chúng tôi đi chợ mua rau quả và cá tươi. Việc nhà để ngày mai.\n");
    return text;
}

const std::string& russianText()
{
    static const std::string text
        = repeated("Завтра утром Ёжик пойдёт в магазин за хлебом и молоком, а вечером ещё раз позвонит домой.\n");
    return text;
}

const std::string& japaneseText()
{
    static const std::string text
        = repeated("明日は朝からデパートへ行って、パンとぶどうを買います。それから友だちに電話をかけます。\n");
    return text;
}

const std::string& koreanText()
{
    static const std::string text
        = repeated("내일 아침에는 시장에 가서 과일과 빵을 사고, 저녁에는 친구에게 전화를 걸 것입니다.\n");
    return text;
}

const std::string& thaiText()
{
    static const std::string text = repeated("พรุ่งนี้เช้าฉันจะไปตลาดเพื่อซื้อผลไม้และขนมปัง แล้วโทรหาเพื่อนตอนเย็น\n");
    return text;
}

const std::string& arabicText()
{
    static const std::string text
        = repeated("غدًا صباحًا أذهب إلى السوق لشراء الخبز والفاكهة، ثم أتصل بصديقي في المساء.\n");
    return text;
}

const std::string& decomposedText()
{
    static const std::string text
        = repeated("Cafe\u0301 und Mu\u0308sli, か\u3099く は\u309Aん, 한\u1161\u11ABu\u0308\n");
    return text;
}

using Text = const std::string& (*)();

void fast(benchmark::State& state, Text text)
{
    std::string result;
    for ([[maybe_unused]] auto round : state) {
        result.clear();
        appendFolded(result, text());
        benchmark::DoNotOptimize(result.data());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text().size()));
}

void reference(benchmark::State& state, Text text)
{
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(foldByReference(text()));
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text().size()));
}

void containsAbsentWord(benchmark::State& state, Text text)
{
    const std::string needle = fold("zygomorphic");
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(foldedContains(text(), needle));
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text().size()));
}

void rangeOfAbsentWord(benchmark::State& state, Text text)
{
    const std::string needle = fold("zygomorphic");
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(rangeOfFolded(text(), needle));
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text().size()));
}

#define TARN_FOLD_BOTH_WAYS(text)                                                                                      \
    BENCHMARK_CAPTURE(fast, text, text);                                                                               \
    BENCHMARK_CAPTURE(reference, text, text)

TARN_FOLD_BOTH_WAYS(asciiText);
TARN_FOLD_BOTH_WAYS(typographicText);
TARN_FOLD_BOTH_WAYS(germanText);
TARN_FOLD_BOTH_WAYS(vietnameseText);
TARN_FOLD_BOTH_WAYS(russianText);
TARN_FOLD_BOTH_WAYS(japaneseText);
TARN_FOLD_BOTH_WAYS(koreanText);
TARN_FOLD_BOTH_WAYS(thaiText);
TARN_FOLD_BOTH_WAYS(arabicText);
TARN_FOLD_BOTH_WAYS(decomposedText);
BENCHMARK_CAPTURE(containsAbsentWord, asciiText, asciiText);
BENCHMARK_CAPTURE(containsAbsentWord, germanText, germanText);
BENCHMARK_CAPTURE(containsAbsentWord, japaneseText, japaneseText);
BENCHMARK_CAPTURE(rangeOfAbsentWord, germanText, germanText);

} // namespace
