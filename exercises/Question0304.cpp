#include "exercises/Catalogue.h"

namespace exercises {

namespace {

class Question0304 final : public Question {
public:
    explicit Question0304(const Environment& environment)
        : Question(u"Question0304",
                   {{u"07305304.ppt", u"Méthodologie.ppt", false},
                    {u"", u"Plan exo 3.rtf", false},
                    {u"", u"Plan exo 3.ppt", false}},
                   environment) {}

private:
    void prepare() override { prepareSlides(); }

    void check() override {
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

} // namespace

QuestionPtr makeQuestion0304(const Environment& environment) {
    return std::make_shared<Question0304>(environment);
}

} // namespace exercises
