#include "Proc/Settings/SettingsAnalyzerSpeechToText.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/ProcException.h"
#include "imported/Utils.h"

namespace Zorvan::Proc {

static_assert(sizeof(unsigned long) == 8, "threadCount is unsigned 64-bit");

const std::string SettingsAnalyzerSpeechToText::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAnalyzerSpeechToText";

namespace {

constexpr avTime oneMinute = 60000000; // microseconds
constexpr avTime microsecondsPerMillisecond = 1000;

// Microseconds to milliseconds, truncated toward zero (the C++ division), as plain decimal.
std::string Milliseconds(avTime time)
{
    return std::to_string(time / microsecondsPerMillisecond);
}

} // namespace

std::string SettingsAnalyzerSpeechToText::Result::SubtitleElement::Trace() const
{
    return "T: '" + text + "', t0: " + Milliseconds(t0) + " ms., t1: " + Milliseconds(t1) + " ms.";
}

std::string SettingsAnalyzerSpeechToText::Result::Subtitle::Trace() const
{
    std::string result = SubtitleElement::Trace();
    if (newSpeaker) {
        result.insert(0, "(New speaker), ");
    }
    for (const SubtitleSegment& segment : segments) {
        result += "\n\t";
        result += segment.SubtitleElement::Trace();
        for (const SubtitleElement& word : segment.words) {
            result += "\n\t\t";
            result += word.Trace();
        }
    }
    return result;
}

std::string SettingsAnalyzerSpeechToText::Result::Trace() const
{
    std::string result = "AnalyzedLanguage: " + analyzedLanguage + " '" + analyzedLanguageName + "'\n";
    if (!error.empty()) {
        result += "Error: '" + error + "' \n";
    }
    for (const Subtitle& subtitle : subtitles) {
        result += subtitle.Trace();
        result += '\n';
    }
    return result;
}

const std::string& SettingsAnalyzerSpeechToText::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAnalyzerSpeechToText::Clone() const
{
    return std::make_unique<SettingsAnalyzerSpeechToText>(*this);
}

void SettingsAnalyzerSpeechToText::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    if (const std::string_view path = OptionRegexSearch(options, "nnm_file", ""); !path.empty()) {
        fileModelPath = Core::Utils::RemoveQuotes(std::string(path));
    }
    if (const std::string_view lang = OptionRegexSearch(options, "lang", ""); !lang.empty()) {
        language = Core::Utils::RemoveQuotes(std::string(lang));
    }
    if (const auto threads = GetOption<unsigned long>(options, "threads", "")) {
        threadCount = *threads;
    }
    if (const auto minutes = GetOption<int>(options, "bufferDuration", "")) {
        SetBufferDuration(static_cast<avTime>(*minutes) * oneMinute);
    }
    if (const auto strategy = GetOption<int>(options, "samplingStrategy", "")) {
        if (*strategy != 0 && *strategy != 1) {
            ThrowSettings("Invalid a SamplingStrategy option. Must be equal 0 or 1.");
        }
        samplingStrategy = static_cast<SamplingStrategy>(*strategy);
    }
    if (const auto forcing = GetOption<bool>(options, "singleSegmentOutputForcing", "")) {
        singleSegmentOutputForcing = *forcing;
    }
    if (const auto length = GetOption<unsigned short>(options, "maxSegmentLength", "")) {
        maxSegmentLength = *length;
    }
    if (const auto split = GetOption<bool>(options, "splitOnWord", "")) {
        splitOnWord = *split;
    }
    if (const auto translate = GetOption<bool>(options, "translatingToEnglish", "")) {
        translatingToEnglish = *translate;
    }
    // The end threshold is read ahead of the begin threshold, so that with both malformed the
    // message names the end one; kept so on purpose for callers that show it.
    if (const auto end = GetOption<int>(options, "endSilenceThreshold", "")) {
        endSilenceThreshold = *end < 0 ? UNDEFINED_TIME : static_cast<avTime>(*end) * microsecondsPerMillisecond;
    }
    if (const auto begin = GetOption<int>(options, "beginSilenceThreshold", "")) {
        beginSilenceThreshold = *begin < 0 ? UNDEFINED_TIME : static_cast<avTime>(*begin) * microsecondsPerMillisecond;
    }
}

void SettingsAnalyzerSpeechToText::SetFileModelPath(std::string path)
{
    fileModelPath = std::move(path);
}

const std::string& SettingsAnalyzerSpeechToText::GetFileModelPath() const
{
    return fileModelPath;
}

void SettingsAnalyzerSpeechToText::SetLanguage(std::string value)
{
    language = std::move(value);
}

const std::string& SettingsAnalyzerSpeechToText::GetLanguage() const
{
    return language;
}

void SettingsAnalyzerSpeechToText::SetThreadCount(unsigned long count)
{
    threadCount = count;
}

unsigned long SettingsAnalyzerSpeechToText::GetThreadCount() const
{
    return threadCount;
}

void SettingsAnalyzerSpeechToText::SetBufferDuration(avTime duration)
{
    if (duration < oneMinute) {
        ThrowSettings("Buffer duration must be greater or equal 1 minute.");
    }
    bufferDuration = duration;
}

avTime SettingsAnalyzerSpeechToText::GetBufferDuration() const
{
    return bufferDuration;
}

void SettingsAnalyzerSpeechToText::SetSamplingStrategy(SamplingStrategy strategy)
{
    samplingStrategy = strategy;
}

SettingsAnalyzerSpeechToText::SamplingStrategy SettingsAnalyzerSpeechToText::GetSamplingStrategy() const
{
    return samplingStrategy;
}

void SettingsAnalyzerSpeechToText::SetSingleSegmentOutputForcing(bool value)
{
    singleSegmentOutputForcing = value;
}

bool SettingsAnalyzerSpeechToText::GetSingleSegmentOutputForcing() const
{
    return singleSegmentOutputForcing;
}

void SettingsAnalyzerSpeechToText::SetMaxSegmentLength(unsigned short length)
{
    maxSegmentLength = length;
}

unsigned short SettingsAnalyzerSpeechToText::GetMaxSegmentLength() const
{
    return maxSegmentLength;
}

void SettingsAnalyzerSpeechToText::SetSplitOnWord(bool value)
{
    splitOnWord = value;
}

bool SettingsAnalyzerSpeechToText::GetSplitOnWord() const
{
    return splitOnWord;
}

void SettingsAnalyzerSpeechToText::SetTranslatingToEnglish(bool value)
{
    translatingToEnglish = value;
}

bool SettingsAnalyzerSpeechToText::GetTranslatingToEnglish() const
{
    return translatingToEnglish;
}

void SettingsAnalyzerSpeechToText::SetBeginSilenceThreshold(avTime threshold)
{
    beginSilenceThreshold = threshold < 0 ? UNDEFINED_TIME : threshold;
}

avTime SettingsAnalyzerSpeechToText::GetBeginSilenceThreshold() const
{
    return beginSilenceThreshold;
}

void SettingsAnalyzerSpeechToText::SetEndSilenceThreshold(avTime threshold)
{
    endSilenceThreshold = threshold < 0 ? UNDEFINED_TIME : threshold;
}

avTime SettingsAnalyzerSpeechToText::GetEndSilenceThreshold() const
{
    return endSilenceThreshold;
}

} // namespace Zorvan::Proc
