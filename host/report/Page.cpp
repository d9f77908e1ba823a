#include "host/report/Page.h"

#include "host/language/Words.h"
#include "host/report/Gallery.h"
#include "host/report/Letters.h"
#include "host/report/PageStyle.h"
#include "host/run/GeneralCode.h"

#include "automation/Text.h"

namespace host::report {

namespace {

using simulator::picture::Markup;

/// A number with its thousands apart.
std::string grouped(std::size_t number) {
    std::string text = std::to_string(number);
    for (std::size_t place = text.size(); place > 3;) {
        place -= 3;
        text.insert(place, "\u202F");
    }
    return text;
}

std::string inSeconds(std::chrono::nanoseconds time) {
    return simulator::picture::number(static_cast<float>(milliseconds(time) / 1000)) + " s";
}

/// What a file is about, without the number that stands beside it.
std::string subjectOf(const FileResult& file) {
    const std::string number = "Question " + std::to_string(file.question) + ": ";
    std::string subject = file.subject.starts_with(number) ? file.subject.substr(number.size()) : file.subject;
    if (!subject.empty() && subject.front() >= 'a' && subject.front() <= 'z') {
        subject.front() = static_cast<char>(subject.front() - 'a' + 'A');
    }
    return subject;
}

std::string inMilliseconds(std::chrono::nanoseconds time) {
    return simulator::picture::number(static_cast<float>(milliseconds(time))) + " ms";
}

std::string anchorOf(const FileResult& file) {
    return "q" + file.name();
}

std::string anchorOf(const FileResult& file, std::size_t scenario) {
    return anchorOf(file) + "-" + std::to_string(scenario + 1);
}

class Writer {
public:
    explicit Writer(const Report& report) : report_(report), totals_(report) {}

    std::string page(const std::string& when) {
        out_.raw(pageBeginning);
        {
            const Markup::Element html = out_.element("html", {{"lang", "en"}});
            writeHead();
            const Markup::Element body = out_.element("body");
            writeHeader(when);
            const Markup::Element main = out_.element("main");
            for (const FileResult& file : report_) {
                out_.raw("\n");
                writeFile(file);
            }
            gallery_.write(out_);
        }
        return out_.take() + "\n";
    }

private:
    void writeHead() {
        const Markup::Element head = out_.element("head");
        out_.leaf("meta", {{"charset", "utf-8"}});
        out_.leaf("meta", {{"name", "viewport"}, {"content", "width=device-width, initial-scale=1"}});
        out_.leaf("title", {},
                  "K73053: " + counted(totals_.passed, "scenario") + " passed, " + std::to_string(totals_.failed) +
                      " failed");
        const Markup::Element style = out_.element("style");
        out_.raw(pageStyle);
    }

    void writeHeader(const std::string& when) {
        const Markup::Element header = out_.element("header");
        out_.leaf("h1", {}, "Exercises and their scenarios");
        out_.leaf("p", {{"class", "quiet"}}, "Written by exercise-host verify, " + when);
        {
            const Markup::Element list = out_.element("ul", {{"class", "totals"}});
            writeTotal("good", std::to_string(totals_.passed), "passed");
            writeTotal(totals_.failed == 0 ? "" : "bad", std::to_string(totals_.failed), "failed");
            writeTotal("", std::to_string(report_.size()), report_.size() == 1 ? "file" : "files");
            if (totals_.calls != 0) {
                writeTotal("", grouped(totals_.calls), "calls of the module");
            }
            writeTotal("", inSeconds(totals_.time), "in the module");
        }
        if (totals_.failed != 0) {
            writeFallen();
        }
    }

    void writeTotal(const std::string& kind, const std::string& number, const std::string& words) {
        const Markup::Element item = out_.element("li", {{"class", kind}});
        out_.leaf("b", {}, number);
        out_.leaf("span", {}, words);
    }

    /// The scenarios that fell short, before all else.
    void writeFallen() {
        const Markup::Element box = out_.element("div", {{"class", "fallen"}});
        out_.leaf("p", {}, "These fell short:");
        const Markup::Element list = out_.element("ul");
        for (const FileResult& file : report_) {
            for (std::size_t i = 0; i < file.results.size(); ++i) {
                if (!file.results[i].passed()) {
                    const Markup::Element item = out_.element("li");
                    writeLink(file, i, file.name() + ", " + file.results[i].title);
                }
            }
        }
    }

    void writeLink(const FileResult& file, std::size_t scenario, const std::string& words) {
        out_.leaf("a", {{"href", "#" + anchorOf(file, scenario)}}, words);
    }

    void writeFile(const FileResult& file) {
        Markup::Attributes attributes{{"class", "file"}, {"id", anchorOf(file)}};
        if (file.failed() != 0) {
            attributes.emplace_back("open", "");
        }
        const Markup::Element row = out_.element("details", attributes);
        const std::vector<Letter> letters = lettersOf(file);
        writeRow(file, letters);
        const Markup::Element inside = out_.element("div", {{"class", "inside"}});
        writeReach(file, letters);
        for (std::size_t i = 0; i < file.results.size(); ++i) {
            writeScenario(file, i);
        }
    }

    void writeRow(const FileResult& file, const std::vector<Letter>& letters) {
        const Markup::Element row = out_.element("summary");
        {
            const Markup::Element heading = out_.element("h2");
            out_.leaf("span", {{"class", "number"}}, file.isQuestion() ? std::to_string(file.question) : file.name());
            out_.text(" ");
            out_.leaf("span", {{"class", "subject"}}, subjectOf(file));
        }
        {
            const Markup::Element list = out_.element("span", {{"class", "letters"}});
            for (const Letter& letter : letters) {
                writeLetter(letter);
            }
        }
        out_.leaf("span", {{"class", file.failed() == 0 ? "count good" : "count bad"}},
                  file.failed() == 0
                      ? std::to_string(file.passed()) + " passed"
                      : std::to_string(file.failed()) + " of " + std::to_string(file.results.size()) + " failed");
    }

    void writeLetter(const Letter& letter) {
        const std::string times = counted(letter.reachedBy.size(), "scenario");
        if (letter.reachedBy.empty()) {
            out_.leaf("span", {{"class", "letter missed"}, {"title", "no scenario reaches it"}}, letter.letter);
        } else if (letter.isGeneral) {
            out_.leaf("span", {{"class", "letter general"}, {"title", "a general error, in " + times}}, letter.letter);
        } else {
            out_.leaf("span", {{"class", "letter"}, {"title", "in " + times}}, letter.letter);
        }
    }

    /// Which scenarios reach which letter.
    void writeReach(const FileResult& file, const std::vector<Letter>& letters) {
        if (letters.empty()) {
            return;
        }
        const Markup::Element list = out_.element("dl", {{"class", "reach"}});
        for (const Letter& letter : letters) {
            {
                const Markup::Element term = out_.element("dt");
                writeLetter(letter);
            }
            const Markup::Element reached = out_.element("dd");
            out_.text(kindOf(letter));
            for (std::size_t i = 0; i < letter.reachedBy.size(); ++i) {
                out_.text(i == 0 ? "" : " · ");
                writeLink(file, letter.reachedBy[i], file.results.at(letter.reachedBy[i]).title);
            }
            if (letter.reachedBy.empty()) {
                out_.text("no scenario reaches it");
            }
        }
    }

    static std::string kindOf(const Letter& letter) {
        if (!letter.isGeneral) {
            const std::string kind = letter.isRemark ? "remark, " : "";
            return letter.meaning.empty() ? kind : kind + letter.meaning + ": ";
        }
        const std::string_view meaning = meaningOfGeneralCode(automation::fromUtf8(letter.letter));
        return "general error" + (meaning.empty() ? "" : ", " + std::string(meaning)) + ": ";
    }

    void writeScenario(const FileResult& file, std::size_t place) {
        const Result& result = file.results[place];
        Markup::Attributes attributes{{"class", "scenario"}, {"id", anchorOf(file, place)}};
        if (!result.passed()) {
            attributes.emplace_back("open", "");
        }
        const Markup::Element scenario = out_.element("details", attributes);
        {
            const Markup::Element summary = out_.element("summary");
            out_.leaf("h3", {}, result.title);
            out_.leaf("span", {{"class", result.passed() ? "verdict good" : "verdict bad"}},
                      (result.passed() ? "✓ " : "✗ ") + lastReading(result, file));
        }
        for (const language::Remark& failure : result.failures) {
            out_.leaf("p", {{"class", "bad"}}, failure.in(file.file));
        }
        for (std::size_t i = 0; i < result.attempts.size(); ++i) {
            writeAttempt(result.attempts[i], file,
                         file.name() + ", " + result.title + (i == 0 ? "" : ", check " + std::to_string(i + 1)) + ": ");
        }
        out_.leaf("p", {{"class", "quiet"}},
                  (result.calls == 0 ? "" : counted(result.calls, "call") + ", ") + inMilliseconds(result.time) +
                      " in the module · line " + std::to_string(result.line) + " of " + file.name() + ".scn");
    }

    static std::string lastReading(const Result& result, const FileResult& file) {
        const auto last = std::find_if(result.attempts.rbegin(), result.attempts.rend(),
                                       [](const Attempt& attempt) { return attempt.reading.has_value(); });
        return last == result.attempts.rend() ? "nothing read" : displayed(*last->reading, file);
    }

    /// What was read, in words. A letter stays one though an earlier check has left the sign of a remark beside it.
    static std::string displayed(const Reading& reading, const FileResult& file) {
        Reading plain = reading;
        const bool isLetter = std::any_of(file.meanings.begin(), file.meanings.end(), [&](const auto& meaning) {
            return meaning.verdict.kind == Expectation::Kind::Letter && meaning.verdict.letter == reading.causeErreur;
        });
        plain.bravoNuance = reading.bravoNuance && !isLetter;
        return plain.display() + (reading.bravoNuance && isLetter ? " with BravoNuance still True" : "");
    }

    /// `place` begins the names of the pictures, for those who do not see them.
    void writeAttempt(const Attempt& attempt, const FileResult& file, const std::string& place) {
        const Markup::Element whole = out_.element("div", {{"class", "attempt"}});
        {
            const Markup::Element told = out_.element("div");
            writeMoves(attempt);
            writeReading(attempt, file);
        }
        if (attempt.reading) {
            const Markup::Element all = out_.element("div", {{"class", "seen"}});
            for (const BeforeAfter& slide : attempt.slides) {
                const bool isOne = attempt.slides.size() == 1 || slide.slide == 0;
                writeSlides(slide, place, isOne ? "" : "Slide " + std::to_string(slide.slide) + ", ");
            }
        }
    }

    void writeMoves(const Attempt& attempt) {
        const Markup::Element list = out_.element("ol", {{"class", "moves"}});
        for (const Move& move : attempt.moves) {
            const Markup::Element item = out_.element("li");
            out_.leaf("i", {}, std::to_string(move.line));
            out_.leaf("code", {}, move.text);
        }
    }

    void writeReading(const Attempt& attempt, const FileResult& file) {
        if (!attempt.reading) {
            return;
        }
        const bool isExpected = attempt.expected && attempt.expected->matches(*attempt.reading);
        const Markup::Element line = out_.element("p", {{"class", isExpected ? "reading good" : "reading bad"}});
        const std::string read = displayed(*attempt.reading, file);
        const std::string expected = attempt.expected ? attempt.expected->display() : "nothing";
        out_.text("Expected " + expected + ", read " + (isExpected && expected == read ? "the same" : read));
        if (!attempt.reading->meaning.empty()) {
            out_.text(": " + attempt.reading->meaning + ".");
        }
        if (!attempt.reading->reason.empty()) {
            const Markup::Element why = out_.element("span", {{"class", "why"}});
            out_.text(attempt.reading->reason);
        }
    }

    /// `which` begins what is said of each, where there are several slides.
    void writeSlides(const BeforeAfter& slide, const std::string& place, const std::string& which) {
        const auto said = [&](const std::string& when) {
            return which + static_cast<char>(when[0] + (which.empty() ? 'A' - 'a' : 0)) + when.substr(1);
        };
        const Markup::Element pair = out_.element("div", {{"class", "slides"}});
        if (slide.before == slide.after) {
            writeSlide(slide.before, place, said("before and after"));
        } else {
            writeSlide(slide.before, place, said("before"));
            writeSlide(slide.after, place, said("after"));
        }
    }

    void writeSlide(const Picture& picture, const std::string& place, const std::string& words) {
        const Markup::Element figure = out_.element("figure");
        if (!picture.bytes.empty()) {
            gallery_.show(picture, place + words, out_);
        }
        out_.leaf("figcaption", {}, picture.bytes.empty() ? words + ": no slide to be seen" : words);
    }

    const Report& report_;
    Totals totals_;
    Gallery gallery_;
    Markup out_;
};

} // namespace

std::string asPage(const Report& report, const std::string& when) {
    return Writer(report).page(when);
}

} // namespace host::report
