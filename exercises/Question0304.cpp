#include "exercises/Make.h"

namespace exercises {

class Question0304 final : public Question {
public:
    Question0304(std::int32_t number, const Environment& environment)
        : Question(number, environment, {{u"", u"Plan exo 3.rtf"}, {u"", u"Plan exo 3.ppt"}}) {}

private:
    void prepare() override { prepareSlides(); }

    void check() override {
        // The first pattern finds a name without extension as well where the file system reads it so; the second search
        // does not rely on that.
        if (!exists(u"Plan exo 3.*") && !exists(u"Plan exo 3")) {
            return cause(u"A");
        }
        if (!exists(u"Plan exo 3.rtf")) {
            return cause(u"B");
        }
    }

    [[nodiscard]] bool exists(std::u16string_view pattern) const {
        const std::u16string path = cheminTravail() + std::u16string(pattern);
        return !services().files.find(path, platform::FileSystem::hiddenAndSystem).empty();
    }
};

template QuestionPtr make<Question0304>(std::int32_t number, const Environment& environment);

} // namespace exercises
