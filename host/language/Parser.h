#pragma once

#include "host/language/Ast.h"

#include <string>
#include <string_view>

namespace host::language {

/// Reads a scenario file in UTF-8, or in UTF-16 with its mark. Raises WrongLines with every wrong line of it.
///
///     question 306                    the question that the file is about
///
///     task "draw a rectangle"         what the learner is to do
///     letter "A" "nothing was drawn"  what each letter means that the question can leave; so does
///     remark "B" "it is tiny"         that of a success with a remark, and
///     error 5 "CLASSE X": "…"         a raised error, with parts that its source contains
///     delivered                       what the presentation delivered must fulfil: expectations, and variables for
///     them
///       expect ActivePresentation.Slides.Count = 1
///
///     course                          the statements that build the presentation delivered
///       Presentations.Add
///       ActivePresentation.Slides.Add 1, ppLayoutBlank
///
///     scenario "a rectangle"          a learner's moves after InitQuestion, and what the host reads
///       Set s = ActivePresentation.Slides(1).Shapes.AddShape(msoShapeRectangle, 20, 20, 100, 60)
///       s.Fill.ForeColor.RGB = RGB(255, 0, 0)
///       check success
///
///     scenario "a file is missing"
///       before InitQuestion           the scenario states InitQuestion itself
///       Files.Delete "07305306.ppt"
///       expect error 53 "SERVICE Renomme": Host.InitQuestion
///
/// Statements are those that the macro recorder writes, one a line or several with colons between; a block of the file
/// ends where the next begins, indented or not. A check is one of
///
///     check "B"                       the letter, no remark, nothing complementary
///     check "C" complement " 3"       with complementary texts, several after commas
///     check success                   no letter
///     check remark "F"                a success that carries a remark
///     check general "AK"              a general error
///     check error 0 "SERVICE X"       TestePoint raises a number, with parts that its source contains
///
/// A file of promises says `class "TextRange"` in the place of the question. Its scenarios are what PowerPoint
/// promises; `documented`, `assumed` or `contested`, with the letters that hang on it, may stand below a title:
///
///     scenario "Words: punctuation is a word of its own"
///       contested "0308 D"
///
/// and `expect x = y` asks for a value, `expect x = y, z = 3` for several, `expect error 91 "SERVICE X": statement` for
/// a raised error (the statement may also stand on the next line).
[[nodiscard]] ScenarioFile parse(std::string fileName, std::string_view bytes);

/// One statement, which may be a block of several lines. Raises SyntaxError.
[[nodiscard]] Statement parseStatement(std::u16string_view lines);
/// One expression. Raises SyntaxError.
[[nodiscard]] Expression parseExpression(std::u16string_view text);

} // namespace host::language
