#include "Proc/Settings/OptionMatcher.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdint>
#include <cstring>
#include <locale>
#include <memory>
#include <mutex>
#include <optional>
#include <tuple>
#include <utility>

#include <boost/container/small_vector.hpp>
#include <fmt/format.h>

#include "Proc/Settings/RegexMachine.h"

namespace Zorvan::Proc::OptionMatcher {

namespace {

constexpr std::string_view kDefaultValuePattern = R"([^":]+|"[^"]*")";
constexpr std::string_view kNumericValuePattern = R"([0-9\.\,\-]+|"[^"]*")";
constexpr std::string_view kSizeValuePattern = R"(\d+x\d+)";

using CharSet = std::array<bool, 256>;

unsigned char Byte(char c)
{
    return static_cast<unsigned char>(c);
}

// What a byte is in a key pattern: kSpecial not literal (the special characters of an
// expression, '=', and NUL, which the general engine is left to read), kBar the '|' between
// alternatives, kNotWord no word character.
constexpr unsigned kSpecial = 1;
constexpr unsigned kBar = 2;
constexpr unsigned kNotWord = 4;

// The byte classes of the library's patterns in one locale, each as std::regex reads it
// with icase there.
struct Tables {
    std::locale locale;
    std::array<unsigned char, 256> lower{};
    CharSet word;     // \w, for \b
    CharSet equals;   // =
    CharSet plain;    // [^":]
    CharSet numeric;  // [0-9\.\,\-]
    CharSet quote;    // "
    CharSet unquoted; // [^"]
    CharSet digit;    // \d
    CharSet ex;       // x
    // The matcher relies on '=' being the only byte that matches '=', on '"' and [^"]
    // splitting the bytes between them, and on no digit matching 'x'. Every real locale
    // does; in one that does not, every pattern goes through RegexMachine.
    bool usable = false;
    // '=' is no word character, and a byte and its lower case are both word characters or neither.
    bool foldKeepsWords = false;
    std::array<unsigned char, 256> keyByte{}; // kSpecial, kBar and kNotWord bits, for reading key patterns
};

std::unique_ptr<Tables> BuildTables(const std::locale& locale)
{
    auto tables = std::make_unique<Tables>();
    tables->locale = locale;
    const auto& ctype = std::use_facet<std::ctype<char>>(locale);
    for (int c = 0; c < 256; ++c) {
        tables->lower[static_cast<std::size_t>(c)] = Byte(ctype.tolower(static_cast<char>(c)));
    }
    using RegexMachine::CharacterSet;
    tables->word = CharacterSet(R"(\w)");
    tables->equals = CharacterSet("=");
    tables->plain = CharacterSet(R"([^":])");
    tables->numeric = CharacterSet(R"([0-9\.\,\-])");
    tables->quote = CharacterSet(R"(")");
    tables->unquoted = CharacterSet(R"([^"])");
    tables->digit = CharacterSet(R"(\d)");
    tables->ex = CharacterSet("x");
    bool usable = true;
    for (std::size_t c = 0; c < 256; ++c) {
        usable = usable && tables->equals[c] == (c == '=') && tables->quote[c] != tables->unquoted[c] &&
                 !(tables->digit[c] && tables->ex[c]);
    }
    tables->usable = usable;
    tables->foldKeepsWords = !tables->word['='];
    for (std::size_t c = 0; c < 256; ++c) {
        tables->foldKeepsWords = tables->foldKeepsWords && tables->word[c] == tables->word[tables->lower[c]];
        tables->keyByte[c] = static_cast<unsigned char>(tables->word[c] ? 0 : kNotWord);
    }
    for (const char c : std::string_view("^$\\.*+?()[]{}=")) {
        tables->keyByte[static_cast<unsigned char>(c)] |= kSpecial;
    }
    tables->keyByte[0] |= kSpecial;
    tables->keyByte['|'] |= kBar;
    return tables;
}

// The tables of the global locale, which is the locale std::regex would read the pattern in.
// Built once per locale for the whole process.
const Tables& CurrentTables()
{
    static std::atomic<const Tables*> last{nullptr};
    const std::locale locale;
    const Tables* tables = last.load(std::memory_order_acquire);
    if (tables != nullptr && tables->locale == locale) {
        return *tables;
    }
    static std::mutex mutex;
    static auto* const built = new std::vector<std::unique_ptr<Tables>>; // kept to the end of the process
    const std::lock_guard lock(mutex);
    const auto found = std::find_if(built->begin(), built->end(), [&](const auto& t) { return t->locale == locale; });
    tables = found != built->end() ? found->get() : built->emplace_back(BuildTables(locale)).get();
    last.store(tables, std::memory_order_release);
    return *tables;
}

enum class ValueKind { Plain, Numeric, Size };

struct ValuePattern {
    ValueKind kind;
    bool stripQuotes; // only the default pattern selected by an empty value pattern
};

std::optional<ValuePattern> KnownValuePattern(std::string_view valuePattern)
{
    if (valuePattern.empty()) {
        return ValuePattern{ValueKind::Plain, true};
    }
    if (valuePattern == kDefaultValuePattern) {
        return ValuePattern{ValueKind::Plain, false};
    }
    if (valuePattern == kNumericValuePattern) {
        return ValuePattern{ValueKind::Numeric, false};
    }
    if (valuePattern == kSizeValuePattern) {
        return ValuePattern{ValueKind::Size, false};
    }
    return std::nullopt;
}

std::string_view StripQuotes(std::string_view value, bool strip)
{
    if (strip && !value.empty() && value.front() == '"') {
        return value.size() >= 2 ? value.substr(1, value.size() - 2) : std::string_view{};
    }
    return value;
}

// The keys of a search when each is a literal word, indexed by length: the parts of key
// patterns between their '|'. With no '=' in a key, a key never reaches past the '=' that
// follows it.
class KeySet {
public:
    static constexpr std::size_t kShort = 63; // keys shorter than this are found by their length
    static constexpr std::uint32_t kNone = ~std::uint32_t{0};

    explicit KeySet(const Tables& tables)
        : kind_(tables.keyByte.data())
        , wordsOnly_(tables.foldKeepsWords)
    {
    }

    // Adds the parts of a key pattern; false when one is more than a literal word.
    bool Add(std::string_view keys)
    {
        const auto* bytes = reinterpret_cast<const unsigned char*>(keys.data());
        unsigned kinds = keys.empty() ? kNotWord : 0U;
        std::size_t i = 0;
        for (; i + 4 <= keys.size(); i += 4) {
            kinds |= kind_[bytes[i]] | kind_[bytes[i + 1]] | kind_[bytes[i + 2]] | kind_[bytes[i + 3]];
        }
        for (; i < keys.size(); ++i) {
            kinds |= kind_[bytes[i]];
        }
        if ((kinds & kSpecial) != 0) {
            return false;
        }
        wordsOnly_ = wordsOnly_ && (kinds & (kNotWord | kBar)) == 0;
        for (std::size_t start = 0;;) {
            const std::size_t bar = (kinds & kBar) == 0 ? keys.size() : std::min(keys.find('|', start), keys.size());
            Push(keys.substr(start, bar - start));
            if (bar == keys.size()) {
                return true;
            }
            start = bar + 1;
        }
    }

    std::size_t size() const { return keys_.size(); }
    std::string_view operator[](std::size_t k) const { return keys_[k].key; }
    std::uint32_t NextOfSameLength(std::uint32_t k) const { return keys_[k].sameLength; }
    // The spelling under which an occurrence of key k last went into a map, if any.
    std::string_view& Added(std::size_t k) { return keys_[k].added; }
    void ForgetAdded()
    {
        for (Entry& entry : keys_) {
            entry.added = {};
        }
    }

    std::uint64_t lengths = 0; // one bit per length of the shorter keys
    std::size_t longestShort = 0;
    std::array<std::uint32_t, kShort> firstOfLength; // read only for the lengths in `lengths`
    boost::container::small_vector<std::uint32_t, 4> longKeys;
    // Every key is made of word characters, and folding case keeps them so.
    bool WordsOnly() const { return wordsOnly_ && longKeys.empty(); }

private:
    void Push(std::string_view key)
    {
        const auto k = static_cast<std::uint32_t>(keys_.size());
        const std::size_t size = key.size();
        if (size >= kShort) {
            longKeys.push_back(k);
            keys_.push_back({key, kNone, {}});
            return;
        }
        const std::uint64_t bit = std::uint64_t{1} << size;
        keys_.push_back({key, (lengths & bit) != 0 ? firstOfLength[size] : kNone, {}});
        firstOfLength[size] = k;
        lengths |= bit;
        longestShort = std::max(longestShort, size);
    }

    struct Entry {
        std::string_view key;
        std::uint32_t sameLength; // the next key of the same length
        std::string_view added;
    };

    const unsigned char* kind_;
    bool wordsOnly_;
    boost::container::small_vector<Entry, 16> keys_;
};

struct Occurrence {
    std::size_t key;        // its index in the KeySet
    std::string_view text;  // the key as the option string spells it
    std::string_view value; // as matched, quotes included
    const char* end;
};

// Searches an option string for key=value as std::regex does with "\b(keys)=(value)". A key
// ends at the first '=' after its start, so the occurrences come in the order of their '=':
// at each '=' the longest key that ends there wins, for it starts furthest to the left,
// and whether a value follows does not depend on the key.
class Search {
public:
    Search(const Tables& tables, std::string_view options, const KeySet& keys, ValueKind kind)
        : tables_(tables)
        , end_(options.data() + options.size())
        , keys_(keys)
        , kind_(kind)
        , wordsOnly_(keys.WordsOnly())
    {
    }

    // The first occurrence in [from, end), the text before `from` unseen, as each search
    // behind a match begins afresh.
    [[gnu::always_inline]] bool Next(const char* from, Occurrence& found)
    {
        return wordsOnly_ ? NextOfWords(from, found) : NextOfAny(from, found);
    }

private:
    bool Found(std::size_t key, const char* equals, Occurrence& found) const
    {
        const char* valueEnd = Value(equals + 1);
        if (valueEnd == nullptr) {
            return false;
        }
        const std::size_t size = keys_[key].size();
        found = {key, {equals - size, size}, {equals + 1, static_cast<std::size_t>(valueEnd - equals - 1)}, valueEnd};
        return true;
    }

    // Keys of word characters only: a key with a word boundary before it and '=' after it
    // is a whole run of word characters, so one pass over the runs finds them in order.
    [[gnu::always_inline]] bool NextOfWords(const char* from, Occurrence& found) const
    {
        const bool* const word = tables_.word.data();
        for (const char* at = from;;) {
            while (at != end_ && !word[static_cast<unsigned char>(*at)]) {
                ++at;
            }
            const char* const start = at;
            while (at != end_ && word[static_cast<unsigned char>(*at)]) {
                ++at;
            }
            if (at == end_) {
                return false;
            }
            const auto size = static_cast<std::size_t>(at - start);
            if (*at == '=' && size < KeySet::kShort && ((keys_.lengths >> size) & 1U) != 0) {
                for (std::uint32_t k = keys_.firstOfLength[size]; k != KeySet::kNone; k = keys_.NextOfSameLength(k)) {
                    if (Equal(at, keys_[k])) {
                        if (Found(k, at, found)) {
                            return true;
                        }
                        break;
                    }
                }
            }
            ++at;
        }
    }

    bool NextOfAny(const char* from, Occurrence& found) const
    {
        for (const char* equals = from; equals != end_; ++equals) {
            equals = FindEquals(equals);
            if (equals == end_) {
                return false;
            }
            const std::size_t key = KeyBefore(from, equals);
            if (key != keys_.size() && Found(key, equals, found)) {
                return true;
            }
        }
        return false;
    }

    // The index of a longest key that ends at `equals` after a word boundary, or the number
    // of keys.
    std::size_t KeyBefore(const char* from, const char* equals) const
    {
        const auto room = static_cast<std::size_t>(equals - from);
        std::size_t found = keys_.size();
        for (const std::uint32_t k : keys_.longKeys) {
            const std::size_t size = keys_[k].size();
            if (size <= room && (found == keys_.size() || size > keys_[found].size()) &&
                Boundary(from, equals - size) && Equal(equals, keys_[k])) {
                found = k;
            }
        }
        if (found != keys_.size() || keys_.lengths == 0) {
            return found;
        }
        // The lengths of the shorter keys that fit before the '=', longest first.
        const std::uint64_t fits = room >= KeySet::kShort ? ~std::uint64_t{0} : (std::uint64_t{2} << room) - 1;
        for (std::uint64_t candidates = keys_.lengths & fits; candidates != 0;) {
            const auto size = static_cast<std::size_t>(63 - __builtin_clzll(candidates));
            candidates &= ~(std::uint64_t{1} << size);
            if (!Boundary(from, equals - size)) {
                continue;
            }
            for (std::uint32_t k = keys_.firstOfLength[size]; k != KeySet::kNone; k = keys_.NextOfSameLength(k)) {
                if (Equal(equals, keys_[k])) {
                    return k;
                }
            }
        }
        return keys_.size();
    }

    bool Boundary(const char* from, const char* start) const
    {
        const bool left = start != from && tables_.word[static_cast<unsigned char>(start[-1])];
        return left != tables_.word[static_cast<unsigned char>(*start)];
    }

    // Whether the text before `equals` is the key, up to case as std::regex folds it.
    bool Equal(const char* equals, std::string_view key) const
    {
        const char* const start = equals - key.size();
        std::size_t i = 0;
        // Eight bytes at a time while they are the same, as they are when the case is.
        for (std::uint64_t a = 0, b = 0; i + 8 <= key.size(); i += 8) {
            std::memcpy(&a, start + i, 8);
            std::memcpy(&b, key.data() + i, 8);
            if (a != b) {
                break;
            }
        }
        const unsigned char* const lower = tables_.lower.data();
        for (; i < key.size(); ++i) {
            if (start[i] != key[i] &&
                lower[static_cast<unsigned char>(start[i])] != lower[static_cast<unsigned char>(key[i])]) {
                return false;
            }
        }
        return true;
    }

    // The next '=' at or after `from`, or the end.
    const char* FindEquals(const char* from) const
    {
        const void* found = std::memchr(from, '=', static_cast<std::size_t>(end_ - from));
        return found != nullptr ? static_cast<const char*>(found) : end_;
    }

    const char* Run(const char* from, const CharSet& set) const
    {
        const bool* const in = set.data();
        while (from != end_ && in[static_cast<unsigned char>(*from)]) {
            ++from;
        }
        return from;
    }

    // The end of the value that begins at `from`, or nullptr.
    const char* Value(const char* from) const
    {
        if (kind_ == ValueKind::Size) {
            const char* digits = Run(from, tables_.digit);
            if (digits == from || digits == end_ || !tables_.ex[Byte(*digits)]) {
                return nullptr;
            }
            const char* more = Run(digits + 1, tables_.digit);
            return more == digits + 1 ? nullptr : more;
        }
        const char* run = Run(from, kind_ == ValueKind::Plain ? tables_.plain : tables_.numeric);
        if (run != from) {
            return run;
        }
        if (from == end_ || !tables_.quote[Byte(*from)]) {
            return nullptr;
        }
        // A quote that finds no closing one means there is no quote left to open another,
        // so these scans never cover the same text twice.
        const char* close = Run(from + 1, tables_.unquoted);
        return close == end_ ? nullptr : close + 1;
    }

    const Tables& tables_;
    const char* const end_;
    const KeySet& keys_;
    const ValueKind kind_;
    const bool wordsOnly_;
};

// Every occurrence in turn, each search starting behind the previous match. `insert` returns
// whether it added the occurrence to its map; an occurrence whose key is spelt as one added
// before through the same key is skipped, for the map keeps the first one anyway.
template <class Insert>
void ForEachOccurrence(const Tables& tables, std::string_view options, KeySet& keys, ValueKind kind, Insert&& insert)
{
    Search search(tables, options, keys, kind);
    const char* const end = options.data() + options.size();
    Occurrence occurrence;
    for (const char* from = options.data(); from != end && search.Next(from, occurrence); from = occurrence.end) {
        std::string_view& spelling = keys.Added(occurrence.key);
        if ((spelling.data() == nullptr || spelling != occurrence.text) && insert(occurrence)) {
            spelling = occurrence.text;
        }
    }
}

std::string FullPattern(std::string_view keys, std::string_view valuePattern)
{
    return fmt::format("\\b({})=({})", keys, valuePattern.empty() ? kDefaultValuePattern : valuePattern);
}

std::string_view View(std::string_view options, const RegexMachine::Groups& groups, int group)
{
    return options.substr(static_cast<std::size_t>(groups.first[group] - options.data()),
                          static_cast<std::size_t>(groups.second[group] - groups.first[group]));
}

Settings::OptionsViewMap GeneralSearch(std::string_view options, std::string_view keys, std::string_view valuePattern)
{
    Settings::OptionsViewMap result;
    const auto program = RegexMachine::Compile(FullPattern(keys, valuePattern));
    const char* const end = options.data() + options.size();
    RegexMachine::Groups groups;
    for (const char* from = options.data(); from != end && RegexMachine::Search(*program, from, end, groups);) {
        const std::string_view value = StripQuotes(View(options, groups, 2), valuePattern.empty());
        if (!value.empty()) {
            result.emplace(std::string(View(options, groups, 1)), value);
        }
        if (groups.second[0] == from) {
            break; // an empty match would be found here again and again, adding nothing
        }
        from = groups.second[0];
    }
    return result;
}

// A key list of GetOptionsMap as read in one locale: copies of the keys, and their KeySet
// unless a key is more than a literal word.
struct KeyList {
    const Tables* tables = nullptr;
    std::vector<std::string> keys;
    std::optional<KeySet> literals; // views into `keys`
};

// Each record class passes the same keys on every call, so the reading of the last few lists
// is kept per thread and taken up again when the same keys come.
KeyList& Remembered(const Tables& tables, const std::vector<std::string>& keys)
{
    thread_local std::array<KeyList, 4> lists;
    thread_local std::size_t oldest = 0;
    for (KeyList& list : lists) {
        if (list.tables == &tables && list.keys == keys) {
            return list;
        }
    }
    KeyList& list = lists[oldest];
    oldest = (oldest + 1) % lists.size();
    list.tables = &tables;
    list.keys = keys;
    list.literals.emplace(tables);
    if (!tables.usable || !std::all_of(list.keys.begin(), list.keys.end(),
                                       [&](const std::string& key) { return list.literals->Add(key); })) {
        list.literals.reset();
    }
    return list;
}

std::atomic<const Replacement*> replacement{nullptr};

} // namespace

void Replace(const Replacement* stand_in)
{
    replacement.store(stand_in, std::memory_order_release);
}

const Replacement* CurrentReplacement()
{
    return replacement.load(std::memory_order_acquire);
}

Settings::OptionsMap GetOptionsMap(std::string_view options, const std::vector<std::string>& keys)
{
    Settings::OptionsMap result;
    // One empty key joins into an empty key pattern, which finds nothing.
    if (keys.empty() || options.empty() || (keys.size() == 1 && keys.front().empty())) {
        return result;
    }
    KeyList& list = Remembered(CurrentTables(), keys);
    if (!list.literals) {
        for (const auto& [key, value] :
             GeneralSearch(options, Core::Utils::ToString(keys, "|"), kNumericValuePattern)) {
            result.emplace(key, std::string(value));
        }
        return result;
    }
    KeySet& literals = *list.literals;
    literals.ForgetAdded();
    ForEachOccurrence(*list.tables, options, literals, ValueKind::Numeric, [&](const Occurrence& found) {
        if (result.empty()) {
            result.reserve(literals.size()); // one bucket array for all the keys that may come
        }
        result.emplace(std::piecewise_construct, std::forward_as_tuple(found.text), std::forward_as_tuple(found.value));
        return true;
    });
    return result;
}

Settings::OptionsViewMap OptionsRegexSearch(std::string_view options, std::string_view keys,
                                            std::string_view valuePattern)
{
    if (options.empty() || keys.empty()) {
        return {};
    }
    const Tables& tables = CurrentTables();
    const auto pattern = KnownValuePattern(valuePattern);
    KeySet literals(tables);
    if (!pattern || !tables.usable || !literals.Add(keys)) {
        return GeneralSearch(options, keys, valuePattern);
    }
    Settings::OptionsViewMap result;
    ForEachOccurrence(tables, options, literals, pattern->kind, [&](const Occurrence& found) {
        const std::string_view value = StripQuotes(found.value, pattern->stripQuotes);
        if (!value.empty()) {
            result.emplace(std::string(found.text), value);
        }
        return !value.empty();
    });
    return result;
}

std::string_view OptionRegexSearch(std::string_view options, std::string_view key, std::string_view valuePattern)
{
    if (options.empty() || key.empty()) {
        return {};
    }
    const Tables& tables = CurrentTables();
    const auto pattern = KnownValuePattern(valuePattern);
    KeySet literals(tables);
    if (!pattern || !tables.usable || !literals.Add(key)) {
        const auto program = RegexMachine::Compile(FullPattern(key, valuePattern));
        RegexMachine::Groups groups;
        if (!RegexMachine::Search(*program, options.data(), options.data() + options.size(), groups)) {
            return {};
        }
        return StripQuotes(View(options, groups, 2), valuePattern.empty());
    }
    Occurrence found;
    if (!Search(tables, options, literals, pattern->kind).Next(options.data(), found)) {
        return {};
    }
    return StripQuotes(found.value, pattern->stripQuotes);
}

} // namespace Zorvan::Proc::OptionMatcher
