#pragma once
// The settings of the speech-to-text stage and the timed text it hands back.
#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "Proc/Settings/Settings.h"
#include "Proc/Settings/Types.h"

namespace Zorvan::Proc {

// Recognition model, language, threads, buffer, sampling and the silence thresholds.
// Overrides Deserialize only: IsEqualTo and IsEmpty stay the base's; no operator==.
class ZORVAN_SETTINGS_EXPORT SettingsAnalyzerSpeechToText : public Settings {
public:
    static const std::string CLASS_ID;

    // The recogniser's sampling strategy; callers and saved projects use the numbers.
    enum class SamplingStrategy : std::int32_t {
        Greedy = 0,
        BeamSearch = 1,
    };

    // The three-level tree of timed text that the stage hands back. Aggregates, so that
    // callers build them with braces; times in microseconds. Not an IAnalyzerResult.
    struct ZORVAN_SETTINGS_EXPORT Result {
        // A timed piece of text: start, end, text.
        struct ZORVAN_SETTINGS_EXPORT SubtitleElement {
            avTime t0 = 0;
            avTime t1 = 0;
            std::string text;

            // "T: '<text>', t0: <t0 ms> ms., t1: <t1 ms> ms." (milliseconds truncated toward zero).
            std::string Trace() const;
        };

        // A segment: its own element, then its words in order.
        struct ZORVAN_SETTINGS_EXPORT SubtitleSegment : SubtitleElement {
            std::vector<SubtitleElement> words;
        };

        // A subtitle: its own element, whether a new speaker starts with it, its segments.
        struct ZORVAN_SETTINGS_EXPORT Subtitle : SubtitleElement {
            bool newSpeaker = false;
            std::vector<SubtitleSegment> segments;

            // The element's trace ("(New speaker), " ahead when set), then "\n\t" and each segment's
            // trace, each followed by "\n\t\t" and the trace of each of its words; no final line feed.
            std::string Trace() const;
        };

        std::string analyzedLanguage;
        std::string analyzedLanguageName;
        std::vector<Subtitle> subtitles;
        std::string error; // empty when the analysis succeeded

        // "AnalyzedLanguage: <lang> '<name>'\n", "Error: '<error>' \n" when there is an error,
        // then each subtitle's trace and a line feed.
        std::string Trace() const;
    };

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    void Deserialize(const std::string& options) override;

    void SetFileModelPath(std::string path);
    const std::string& GetFileModelPath() const;
    void SetLanguage(std::string value);
    const std::string& GetLanguage() const;
    void SetThreadCount(unsigned long count);
    unsigned long GetThreadCount() const;
    // Throws SettingsException below 60000000 (one minute), the field unchanged.
    void SetBufferDuration(avTime duration);
    avTime GetBufferDuration() const;
    void SetSamplingStrategy(SamplingStrategy strategy);
    SamplingStrategy GetSamplingStrategy() const;
    void SetSingleSegmentOutputForcing(bool value);
    bool GetSingleSegmentOutputForcing() const;
    void SetMaxSegmentLength(unsigned short length);
    unsigned short GetMaxSegmentLength() const;
    void SetSplitOnWord(bool value);
    bool GetSplitOnWord() const;
    void SetTranslatingToEnglish(bool value);
    bool GetTranslatingToEnglish() const;
    // A negative argument stores the undefined time (the smallest 64-bit value).
    void SetBeginSilenceThreshold(avTime threshold);
    avTime GetBeginSilenceThreshold() const;
    void SetEndSilenceThreshold(avTime threshold);
    avTime GetEndSilenceThreshold() const;

private:
    // The undefined time: the only negative value a silence threshold holds.
    static constexpr avTime UNDEFINED_TIME = std::numeric_limits<avTime>::min();

    std::string fileModelPath;                                    // default: no model file named
    std::string language;                                         // default: empty, no language requested
    unsigned long threadCount = 0;                                // default: 0, no thread count asked of the recogniser
    avTime bufferDuration = 60000000;                             // default: one minute, the smallest valid buffer
    SamplingStrategy samplingStrategy = SamplingStrategy::Greedy; // default: 0
    bool singleSegmentOutputForcing = false;                      // default: no forcing
    unsigned short maxSegmentLength = 0;                          // default: 0, no limit asked
    bool splitOnWord = false;                                     // default: off
    bool translatingToEnglish = false;                            // default: no translation
    avTime beginSilenceThreshold = UNDEFINED_TIME;                // default: undefined
    avTime endSilenceThreshold = UNDEFINED_TIME;                  // default: undefined
};

} // namespace Zorvan::Proc
