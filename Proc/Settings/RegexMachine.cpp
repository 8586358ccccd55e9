#include "Proc/Settings/RegexMachine.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <locale>
#include <map>
#include <regex>
#include <string_view>
#include <utility>
#include <vector>

namespace Zorvan::Proc::RegexMachine {

namespace {

constexpr auto kFlags = std::regex_constants::ECMAScript | std::regex_constants::icase;

// A search that needs more backtracking records than this (32 bytes each) gives up with
// error_stack, as std::regex_search is allowed to.
constexpr std::size_t kMaxRecords = std::size_t{1} << 22;

// Compiled expressions kept per thread.
constexpr std::size_t kCacheSize = 16;

enum class Op : std::uint8_t {
    Repeat,
    SubBegin,
    SubEnd,
    LineBegin,
    LineEnd,
    WordBound,
    Lookahead,
    Match,
    Backref,
    Accept,
    Alternative,
    Dummy
};

// One node of the automaton, linked as std::regex links its own: `alt` is the branch tried
// first (the left alternative, one more repetition), `next` the other one.
struct State {
    Op op;
    bool neg = false; // a lazy repeat, \B, a negative lookahead
    int next = -1;
    int alt = -1;
    int index = 0; // the group of SubBegin, SubEnd and Backref; the character set of Match
};

using CharSet = std::array<bool, 256>;

unsigned char Byte(char c)
{
    return static_cast<unsigned char>(c);
}

} // namespace

class Program {
public:
    std::vector<State> states;
    std::vector<CharSet> sets;
    std::vector<bool> singleCharLoop; // greedy repeats of one character set, run without a record per character
    CharSet word{};
    std::array<unsigned char, 256> lower{};
    int groups = 0;
};

namespace {

bool HasAlt(Op op)
{
    return op == Op::Alternative || op == Op::Repeat || op == Op::Lookahead;
}

enum class Tok : std::uint8_t {
    Eof,
    Char,
    Any,
    Class,
    Bracket,
    Backref,
    WordBound,
    LineBegin,
    LineEnd,
    Star,
    Plus,
    Opt,
    Or,
    Group,
    NoGroup,
    Lookahead,
    GroupEnd,
    Interval,
    Count,
    Comma,
    IntervalEnd
};

// The tokens of an ECMAScript expression that std::regex has accepted, cut where std::regex
// cuts them; a bracket expression is one token.
class Scanner {
public:
    Scanner(std::string_view pattern, const std::ctype<char>& ctype)
        : pos_(pattern.data())
        , end_(pattern.data() + pattern.size())
        , ctype_(ctype)
    {
        Advance();
    }

    void Advance()
    {
        neg = false;
        if (pos_ == end_) {
            tok = Tok::Eof;
            return;
        }
        const char* const start = pos_;
        const char c = Next();
        if (inBrace_) {
            if (IsDigit(c)) {
                tok = Tok::Count;
                value = Number(c);
            } else if (c == ',') {
                tok = Tok::Comma;
            } else {
                tok = Tok::IntervalEnd;
                inBrace_ = false;
            }
        } else {
            Normal(c);
        }
        text = std::string_view(start, static_cast<std::size_t>(pos_ - start));
    }

    Tok tok = Tok::Eof;
    std::string_view text;
    long value = 0;
    bool neg = false;

private:
    char Next()
    {
        if (pos_ == end_) {
            throw std::regex_error(std::regex_constants::error_escape);
        }
        return *pos_++;
    }

    bool IsDigit(char c) const { return ctype_.is(std::ctype_base::digit, c); }

    long Number(char first)
    {
        long number = first - '0';
        while (pos_ != end_ && IsDigit(*pos_)) {
            number = number * 10 + (Next() - '0');
        }
        return number;
    }

    void Normal(char c)
    {
        switch (c) {
        case '\\':
            Escape();
            break;
        case '(':
            if (pos_ != end_ && *pos_ == '?') {
                ++pos_;
                const char kind = Next();
                tok = kind == ':' ? Tok::NoGroup : Tok::Lookahead;
                neg = kind == '!';
            } else {
                tok = Tok::Group;
            }
            break;
        case ')':
            tok = Tok::GroupEnd;
            break;
        case '[':
            SkipBracket();
            tok = Tok::Bracket;
            break;
        case '{':
            tok = Tok::Interval;
            inBrace_ = true;
            break;
        case '^':
            tok = Tok::LineBegin;
            break;
        case '$':
            tok = Tok::LineEnd;
            break;
        case '.':
            tok = Tok::Any;
            break;
        case '*':
            tok = Tok::Star;
            break;
        case '+':
            tok = Tok::Plus;
            break;
        case '?':
            tok = Tok::Opt;
            break;
        case '|':
            tok = Tok::Or;
            break;
        default: // ']', '}', NUL and every other byte stand for themselves
            tok = Tok::Char;
        }
    }

    void Escape()
    {
        const char c = Next();
        if (c != '\0' && std::string_view("0fnrtv").find(c) != std::string_view::npos) {
            tok = Tok::Char;
        } else if (c == 'b' || c == 'B') {
            tok = Tok::WordBound;
            neg = c == 'B';
        } else if (c != '\0' && std::string_view("dDsSwW").find(c) != std::string_view::npos) {
            tok = Tok::Class;
        } else if (c == 'c' || c == 'x' || c == 'u') {
            // \cX is the letter X itself in std::regex; \xHH and \uHHHH are one character.
            for (int i = c == 'c' ? 1 : c == 'x' ? 2 : 4; i > 0; --i) {
                Next();
            }
            tok = Tok::Char;
        } else if (IsDigit(c)) {
            tok = Tok::Backref;
            value = Number(c);
        } else {
            tok = Tok::Char;
        }
    }

    void SkipBracket()
    {
        if (pos_ != end_ && *pos_ == '^') {
            ++pos_;
        }
        for (char c = Next(); c != ']'; c = Next()) {
            if (c == '[' && pos_ != end_ && (*pos_ == '.' || *pos_ == ':' || *pos_ == '=')) {
                const char kind = Next();
                while (Next() != kind) {
                }
                Next(); // the ']' of "[:name:]"
            } else if (c == '\\') {
                const char e = Next();
                for (int i = e == 'c' ? 1 : e == 'x' ? 2 : e == 'u' ? 4 : 0; i > 0; --i) {
                    Next();
                }
            }
        }
    }

    const char* pos_;
    const char* const end_;
    const std::ctype<char>& ctype_;
    bool inBrace_ = false;
};

// Builds the automaton std::regex builds for the same expression, node for node.
class Compiler {
public:
    Compiler(std::string_view pattern, Program& program, const std::locale& locale)
        : program_(program)
        , scanner_(pattern, std::use_facet<std::ctype<char>>(locale))
    {
    }

    void Run()
    {
        Seq whole{Insert({Op::SubBegin}), 0};
        whole.end = whole.start;
        ++program_.groups;
        Disjunction();
        if (scanner_.tok != Tok::Eof) {
            throw std::regex_error(std::regex_constants::error_paren);
        }
        Append(whole, Pop());
        Append(whole, Insert({Op::SubEnd}));
        Append(whole, Insert({Op::Accept}));
        EliminateDummies();
        program_.word = CharacterSet("\\w");
        auto& states = program_.states;
        program_.singleCharLoop.resize(states.size());
        for (std::size_t i = 0; i < states.size(); ++i) {
            const State& state = states[i];
            program_.singleCharLoop[i] = state.op == Op::Repeat && !state.neg && state.alt >= 0 &&
                                         states[state.alt].op == Op::Match &&
                                         states[state.alt].next == static_cast<int>(i);
        }
    }

private:
    struct Seq {
        int start;
        int end;
    };

    int Insert(State state)
    {
        program_.states.push_back(state);
        return static_cast<int>(program_.states.size() - 1);
    }

    void Append(Seq& seq, int id)
    {
        program_.states[seq.end].next = id;
        seq.end = id;
    }

    void Append(Seq& seq, Seq tail)
    {
        program_.states[seq.end].next = tail.start;
        seq.end = tail.end;
    }

    void Push(int id) { stack_.push_back({id, id}); }

    Seq Pop()
    {
        const Seq seq = stack_.back();
        stack_.pop_back();
        return seq;
    }

    bool Take(Tok tok)
    {
        if (scanner_.tok != tok) {
            return false;
        }
        text_ = scanner_.text;
        value_ = scanner_.value;
        neg_ = scanner_.neg;
        scanner_.Advance();
        return true;
    }

    void Disjunction()
    {
        Alternative();
        while (Take(Tok::Or)) {
            Seq left = Pop();
            Alternative();
            Seq right = Pop();
            const int end = Insert({Op::Dummy});
            Append(left, end);
            Append(right, end);
            State fork{Op::Alternative};
            fork.next = right.start;
            fork.alt = left.start;
            stack_.push_back({Insert(fork), end});
        }
    }

    void Alternative()
    {
        const std::size_t base = stack_.size();
        while (Term()) {
        }
        const int tail = Insert({Op::Dummy});
        Seq seq{tail, tail};
        if (stack_.size() > base) {
            seq = stack_[base];
            for (std::size_t i = base + 1; i < stack_.size(); ++i) {
                Append(seq, stack_[i]);
            }
            Append(seq, tail);
            stack_.resize(base);
        }
        stack_.push_back(seq);
    }

    bool Term()
    {
        if (Assertion()) {
            return true;
        }
        if (!Atom()) {
            return false;
        }
        while (Quantifier()) {
        }
        return true;
    }

    bool Assertion()
    {
        if (Take(Tok::LineBegin)) {
            Push(Insert({Op::LineBegin}));
        } else if (Take(Tok::LineEnd)) {
            Push(Insert({Op::LineEnd}));
        } else if (Take(Tok::WordBound)) {
            Push(Insert({Op::WordBound, neg_}));
        } else if (Take(Tok::Lookahead)) {
            const bool neg = neg_;
            Disjunction();
            Take(Tok::GroupEnd);
            Seq body = Pop();
            Append(body, Insert({Op::Accept}));
            State lookahead{Op::Lookahead, neg};
            lookahead.alt = body.start;
            Push(Insert(lookahead));
        } else {
            return false;
        }
        return true;
    }

    bool Atom()
    {
        if (Take(Tok::Char) || Take(Tok::Any) || Take(Tok::Class) || Take(Tok::Bracket)) {
            State match{Op::Match};
            match.index = SetIndex(text_);
            Push(Insert(match));
        } else if (Take(Tok::Backref)) {
            State backref{Op::Backref};
            backref.index = static_cast<int>(value_);
            Push(Insert(backref));
        } else if (Take(Tok::NoGroup)) {
            Seq group{Insert({Op::Dummy}), 0};
            group.end = group.start;
            Disjunction();
            Take(Tok::GroupEnd);
            Append(group, Pop());
            stack_.push_back(group);
        } else if (Take(Tok::Group)) {
            State begin{Op::SubBegin};
            begin.index = program_.groups++;
            Seq group{Insert(begin), 0};
            group.end = group.start;
            Disjunction();
            Take(Tok::GroupEnd);
            Append(group, Pop());
            State end{Op::SubEnd};
            end.index = begin.index;
            Append(group, Insert(end));
            stack_.push_back(group);
        } else {
            return false;
        }
        return true;
    }

    int Repeat(int next, int alt, bool lazy)
    {
        State repeat{Op::Repeat, lazy};
        repeat.next = next;
        repeat.alt = alt;
        return Insert(repeat);
    }

    bool Quantifier()
    {
        const bool star = Take(Tok::Star);
        const bool plus = !star && Take(Tok::Plus);
        const bool opt = !star && !plus && Take(Tok::Opt);
        if (star || plus || opt) {
            const bool lazy = Take(Tok::Opt);
            Seq body = Pop();
            if (star) {
                const int repeat = Repeat(-1, body.start, lazy);
                Append(body, repeat);
                Push(repeat);
            } else if (plus) {
                Append(body, Repeat(-1, body.start, lazy));
                stack_.push_back(body);
            } else {
                const int end = Insert({Op::Dummy});
                Seq repeat{Repeat(-1, body.start, lazy), 0};
                repeat.end = repeat.start;
                Append(body, end);
                Append(repeat, end);
                stack_.push_back(repeat);
            }
            return true;
        }
        if (!Take(Tok::Interval)) {
            return false;
        }
        Take(Tok::Count);
        const long min = value_;
        bool unbounded = false;
        long extra = 0;
        if (Take(Tok::Comma)) {
            if (Take(Tok::Count)) {
                extra = value_ - min;
            } else {
                unbounded = true;
            }
        }
        Take(Tok::IntervalEnd);
        const bool lazy = Take(Tok::Opt);
        const Seq body = Pop();
        Seq seq{Insert({Op::Dummy}), 0};
        seq.end = seq.start;
        for (long i = 0; i < min; ++i) {
            Append(seq, Clone(body));
        }
        if (unbounded) {
            Seq copy = Clone(body);
            const int repeat = Repeat(-1, copy.start, lazy);
            Append(copy, repeat);
            Append(seq, repeat);
        } else {
            // Each optional copy: one more (alt) or skip to the end (next).
            const int end = Insert({Op::Dummy});
            for (long i = 0; i < extra; ++i) {
                const Seq copy = Clone(body);
                Append(seq, Seq{Repeat(end, copy.start, lazy), copy.end});
            }
            Append(seq, end);
        }
        stack_.push_back(seq);
        return true;
    }

    // A copy of the nodes reachable from seq.start without leaving through seq.end.
    Seq Clone(Seq seq)
    {
        auto& states = program_.states;
        std::map<int, int> copies;
        std::vector<int> pending{seq.start};
        while (!pending.empty()) {
            const int id = pending.back();
            pending.pop_back();
            const State state = states[id];
            copies[id] = Insert(state);
            if (HasAlt(state.op) && state.alt != -1 && copies.count(state.alt) == 0) {
                pending.push_back(state.alt);
            }
            if (id != seq.end && state.next != -1 && copies.count(state.next) == 0) {
                pending.push_back(state.next);
            }
        }
        for (const auto& [original, copy] : copies) {
            State& state = states[copy];
            if (const auto found = copies.find(state.next); state.next != -1 && found != copies.end()) {
                state.next = found->second;
            }
            if (const auto found = copies.find(state.alt); HasAlt(state.op) && found != copies.end()) {
                state.alt = found->second;
            }
        }
        return {copies[seq.start], copies[seq.end]};
    }

    void EliminateDummies()
    {
        auto& states = program_.states;
        for (State& state : states) {
            while (state.next >= 0 && states[state.next].op == Op::Dummy) {
                state.next = states[state.next].next;
            }
            if (HasAlt(state.op)) {
                while (state.alt >= 0 && states[state.alt].op == Op::Dummy) {
                    state.alt = states[state.alt].next;
                }
            }
        }
    }

    int SetIndex(std::string_view text)
    {
        const auto found = setIndex_.find(text);
        if (found != setIndex_.end()) {
            return found->second;
        }
        program_.sets.push_back(CharacterSet(text));
        const int index = static_cast<int>(program_.sets.size() - 1);
        setIndex_.emplace(std::string(text), index);
        return index;
    }

    Program& program_;
    Scanner scanner_;
    std::vector<Seq> stack_;
    std::map<std::string, int, std::less<>> setIndex_;
    std::string_view text_;
    long value_ = 0;
    bool neg_ = false;
};

struct Sub {
    const char* first = nullptr;
    const char* second = nullptr;
    bool matched = false;
};

// How often a repeat was entered at one position: a repeat that matched nothing may be
// entered a second time there and no more, as in std::regex.
struct Visits {
    const char* pos = nullptr;
    int count = 0;
};

enum class Rec : std::uint8_t { Resume, OnceMore, RestoreVisits, RestoreFirst, RestoreSub, Run };

// One entry of the backtracking stack: a branch still to try or a value to put back.
struct Record {
    Rec kind;
    bool matched;
    int state;
    int count;
    const char* pos;
    const char* other;
};

// The depth-first search of std::regex's executor, with the call stack turned into records.
class Machine {
public:
    Machine(const Program& program, const char* end)
        : program_(program)
        , end_(end)
        , visits_(program.states.size())
    {
    }

    // A match of the automaton from `start` at `from`, in the order std::regex tries them;
    // on success `results` holds the groups.
    bool Run(int start, const char* from, bool prevAvail, std::vector<Sub>& results)
    {
        begin_ = from;
        prevAvail_ = prevAvail;
        current_ = results;
        trail_.clear();
        int state = start;
        const char* pos = from;
        for (;;) {
            const Step step = Advance(state, pos);
            if (step == Step::Accept) {
                results = current_;
                return true;
            }
            if (step == Step::Fail && !Backtrack(state, pos)) {
                return false;
            }
        }
    }

private:
    enum class Step { Go, Fail, Accept };

    void Push(Rec kind, int state, const char* pos, const char* other = nullptr, int count = 0, bool matched = false)
    {
        if (trail_.size() >= kMaxRecords) {
            throw std::regex_error(std::regex_constants::error_stack);
        }
        trail_.push_back({kind, matched, state, count, pos, other});
    }

    bool OnceMore(int repeat, const char* pos, int& state)
    {
        Visits& visits = visits_[repeat];
        if (visits.count == 0 || visits.pos != pos) {
            Push(Rec::RestoreVisits, repeat, nullptr, visits.pos, visits.count);
            visits = {pos, 1};
        } else if (visits.count < 2) {
            Push(Rec::RestoreVisits, repeat, nullptr, visits.pos, visits.count);
            ++visits.count;
        } else {
            return false;
        }
        state = program_.states[repeat].alt;
        return true;
    }

    bool WordBoundary(const char* pos) const
    {
        const bool left = (pos != begin_ || prevAvail_) && program_.word[Byte(pos[-1])];
        const bool right = pos != end_ && program_.word[Byte(*pos)];
        return left != right;
    }

    bool Lookahead(int start, const char* pos)
    {
        Machine inner(program_, end_);
        std::vector<Sub> found = current_;
        if (!inner.Run(start, pos, prevAvail_, found)) {
            return false;
        }
        // Groups set inside stay set, with no record: std::regex keeps them so.
        for (std::size_t i = 0; i < found.size(); ++i) {
            if (found[i].matched) {
                current_[i] = found[i];
            }
        }
        return true;
    }

    Step Advance(int& state, const char*& pos)
    {
        const State& node = program_.states[state];
        switch (node.op) {
        case Op::Repeat:
            if (node.neg) {
                Push(Rec::OnceMore, state, pos);
                state = node.next;
                return Step::Go;
            }
            if (program_.singleCharLoop[state]) {
                return StartRun(state, pos);
            }
            Push(Rec::Resume, node.next, pos);
            return OnceMore(state, pos, state) ? Step::Go : Step::Fail;
        case Op::SubBegin:
            Push(Rec::RestoreFirst, node.index, nullptr, current_[node.index].first);
            current_[node.index].first = pos;
            break;
        case Op::SubEnd: {
            const Sub old = current_[node.index];
            Push(Rec::RestoreSub, node.index, old.first, old.second, 0, old.matched);
            current_[node.index].second = pos;
            current_[node.index].matched = true;
            break;
        }
        case Op::LineBegin:
            if (pos != begin_ || prevAvail_) {
                return Step::Fail;
            }
            break;
        case Op::LineEnd:
            if (pos != end_) {
                return Step::Fail;
            }
            break;
        case Op::WordBound:
            if (WordBoundary(pos) == node.neg) {
                return Step::Fail;
            }
            break;
        case Op::Lookahead:
            if (Lookahead(node.alt, pos) == node.neg) {
                return Step::Fail;
            }
            break;
        case Op::Match:
            if (pos == end_ || !program_.sets[node.index][Byte(*pos)]) {
                return Step::Fail;
            }
            ++pos;
            break;
        case Op::Backref: {
            const Sub& group = current_[node.index];
            if (!group.matched || end_ - pos < group.second - group.first) {
                return Step::Fail;
            }
            for (const char* p = group.first; p != group.second; ++p, ++pos) {
                if (program_.lower[Byte(*p)] != program_.lower[Byte(*pos)]) {
                    return Step::Fail;
                }
            }
            break;
        }
        case Op::Accept:
            return Step::Accept;
        case Op::Alternative:
            Push(Rec::Resume, node.next, pos);
            state = node.alt;
            return Step::Go;
        case Op::Dummy:
            break;
        }
        state = node.next;
        return Step::Go;
    }

    // A greedy repeat of one character set: all the characters it can take at once, then
    // the rest of the expression from the longest run back to the shortest, with the visit
    // counts each of those attempts would have seen.
    Step StartRun(int& state, const char*& pos)
    {
        const Visits visits = visits_[state];
        int after = 1;
        if (visits.count != 0 && visits.pos == pos) {
            if (visits.count >= 2) {
                state = program_.states[state].next;
                return Step::Go;
            }
            after = visits.count + 1;
        }
        const CharSet& set = program_.sets[program_.states[program_.states[state].alt].index];
        const char* last = pos;
        while (last != end_ && set[Byte(*last)]) {
            ++last;
        }
        Push(Rec::RestoreVisits, state, nullptr, visits.pos, visits.count);
        Push(Rec::Run, state, pos, last, after);
        return Step::Fail; // taken up at once by Backtrack, from the end of the run
    }

    bool Backtrack(int& state, const char*& pos)
    {
        while (!trail_.empty()) {
            Record& record = trail_.back();
            switch (record.kind) {
            case Rec::Resume:
                state = record.state;
                pos = record.pos;
                trail_.pop_back();
                return true;
            case Rec::OnceMore: {
                const int repeat = record.state;
                const char* const at = record.pos;
                trail_.pop_back();
                if (OnceMore(repeat, at, state)) {
                    pos = at;
                    return true;
                }
                break;
            }
            case Rec::RestoreVisits:
                visits_[record.state] = {record.other, record.count};
                trail_.pop_back();
                break;
            case Rec::RestoreFirst:
                current_[record.state].first = record.other;
                trail_.pop_back();
                break;
            case Rec::RestoreSub:
                current_[record.state] = {record.pos, record.other, record.matched};
                trail_.pop_back();
                break;
            case Rec::Run: {
                const int repeat = record.state;
                const char* const at = record.other;
                if (at == record.pos) {
                    trail_.pop_back();
                    const Record& saved = trail_.back(); // the visits before the run
                    visits_[repeat] = {saved.other, saved.count};
                    trail_.pop_back();
                } else {
                    visits_[repeat] = at == record.pos + 1 ? Visits{record.pos, record.count} : Visits{at - 1, 1};
                    record.other = at - 1;
                }
                state = program_.states[repeat].next;
                pos = at;
                return true;
            }
            }
        }
        return false;
    }

    const Program& program_;
    const char* begin_ = nullptr;
    const char* const end_;
    bool prevAvail_ = false;
    std::vector<Sub> current_;
    std::vector<Visits> visits_;
    std::vector<Record> trail_;
};

struct CacheEntry {
    std::string pattern;
    std::locale locale;
    std::shared_ptr<const Program> program;
};

} // namespace

CharSet CharacterSet(std::string_view expression)
{
    // Each set is std::regex's own answer, so classes, ranges and case folding follow the
    // locale exactly as they do there.
    const std::regex atom(expression.begin(), expression.end(), kFlags);
    CharSet set{};
    for (int c = 0; c < 256; ++c) {
        const char ch = static_cast<char>(c);
        set[static_cast<std::size_t>(c)] = std::regex_match(&ch, &ch + 1, atom);
    }
    return set;
}

std::shared_ptr<const Program> Compile(const std::string& pattern)
{
    thread_local std::vector<CacheEntry> cache;
    const std::locale locale;
    const auto hit = std::find_if(cache.begin(), cache.end(), [&](const CacheEntry& entry) {
        return entry.pattern == pattern && entry.locale == locale;
    });
    if (hit != cache.end()) {
        std::rotate(cache.begin(), hit, hit + 1);
        return cache.front().program;
    }
    // std::regex reads the expression first: a bad one fails here with its own error.
    const std::regex checked(pattern, kFlags);
    auto program = std::make_shared<Program>();
    Compiler(pattern, *program, locale).Run();
    const auto& ctype = std::use_facet<std::ctype<char>>(locale);
    for (int c = 0; c < 256; ++c) {
        program->lower[static_cast<std::size_t>(c)] = Byte(ctype.tolower(static_cast<char>(c)));
    }
    if (cache.size() == kCacheSize) {
        cache.pop_back();
    }
    cache.insert(cache.begin(), {pattern, locale, program});
    return program;
}

bool Search(const Program& program, const char* first, const char* last, Groups& groups)
{
    std::vector<Sub> results(static_cast<std::size_t>(program.groups));
    Machine machine(program, last);
    for (const char* begin = first;; ++begin) {
        if (machine.Run(0, begin, begin != first, results)) {
            for (std::size_t i = 0; i < 3; ++i) {
                const bool matched = i < results.size() && results[i].matched;
                groups.first[i] = matched ? results[i].first : last;
                groups.second[i] = matched ? results[i].second : last;
            }
            return true;
        }
        if (begin == last) {
            return false;
        }
    }
}

} // namespace Zorvan::Proc::RegexMachine
