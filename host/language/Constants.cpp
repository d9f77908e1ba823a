#include "host/language/Constants.h"

#include "automation/Text.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace host::language {

namespace {

using automation::equalIgnoringCase;
using automation::Value;

/// Constants whose values follow each other: each is named by the stem and one of the words.
struct Run {
    std::u16string_view stem;
    std::int32_t first;
    std::u16string_view words;
};

constexpr auto runs = std::to_array<Run>({
    {u"mso", -2, u"TriStateMixed True False"},
    {u"msoShape", 1,
     u"Rectangle Parallelogram Trapezoid Diamond RoundedRectangle Octagon IsoscelesTriangle RightTriangle Oval Hexagon "
     u"Cross RegularPentagon Can Cube Bevel FoldedCorner SmileyFace Donut NoSymbol BlockArc Heart LightningBolt Sun "
     u"Moon Arc DoubleBracket DoubleBrace Plaque LeftBracket RightBracket LeftBrace RightBrace RightArrow LeftArrow "
     u"UpArrow DownArrow LeftRightArrow UpDownArrow QuadArrow LeftRightUpArrow BentArrow UTurnArrow LeftUpArrow "
     u"BentUpArrow CurvedRightArrow CurvedLeftArrow CurvedUpArrow CurvedDownArrow StripedRightArrow NotchedRightArrow "
     u"Pentagon Chevron RightArrowCallout LeftArrowCallout UpArrowCallout DownArrowCallout LeftRightArrowCallout "
     u"UpDownArrowCallout QuadArrowCallout CircularArrow FlowchartProcess FlowchartAlternateProcess FlowchartDecision "
     u"FlowchartData FlowchartPredefinedProcess FlowchartInternalStorage FlowchartDocument FlowchartMultidocument "
     u"FlowchartTerminator FlowchartPreparation FlowchartManualInput FlowchartManualOperation FlowchartConnector "
     u"FlowchartOffpageConnector FlowchartCard FlowchartPunchedTape FlowchartSummingJunction FlowchartOr "
     u"FlowchartCollate FlowchartSort FlowchartExtract FlowchartMerge FlowchartStoredData FlowchartDelay "
     u"FlowchartSequentialAccessStorage FlowchartMagneticDisk FlowchartDirectAccessStorage FlowchartDisplay Explosion1 "
     u"Explosion2 4pointStar 5pointStar 8pointStar 16pointStar 24pointStar 32pointStar UpRibbon DownRibbon "
     u"CurvedUpRibbon CurvedDownRibbon VerticalScroll HorizontalScroll Wave DoubleWave RectangularCallout "
     u"RoundedRectangularCallout OvalCallout CloudCallout LineCallout1 LineCallout2 LineCallout3 LineCallout4 "
     u"LineCallout1AccentBar LineCallout2AccentBar LineCallout3AccentBar LineCallout4AccentBar LineCallout1NoBorder "
     u"LineCallout2NoBorder LineCallout3NoBorder LineCallout4NoBorder LineCallout1BorderandAccentBar "
     u"LineCallout2BorderandAccentBar LineCallout3BorderandAccentBar LineCallout4BorderandAccentBar "
     u"ActionButtonCustom ActionButtonHome ActionButtonHelp ActionButtonInformation ActionButtonBackorPrevious "
     u"ActionButtonForwardorNext ActionButtonBeginning ActionButtonEnd ActionButtonReturn ActionButtonDocument "
     u"ActionButtonSound ActionButtonMovie Balloon"},
    {u"msoShape", -2, u"Mixed"},
    {u"msoPresetThreeDFormat", -2, u"Mixed"},
    {u"mso", 1, u"AutoShape Callout Chart Comment Freeform Group EmbeddedOLEObject FormControl Line"},
    {u"mso", 10,
     u"LinkedOLEObject LinkedPicture OLEControlObject Picture Placeholder TextEffect Media TextBox ScriptAnchor Table"},
    {u"mso", 0, u"BringToFront SendToBack BringForward SendBackward"},
    {u"mso", 0, u"FlipHorizontal FlipVertical"},
    {u"msoScaleFrom", 0, u"TopLeft Middle BottomRight"},
    {u"msoAnchor", 1, u"None Center"},
    {u"msoAnchor", 1, u"Top TopBaseline Middle Bottom BottomBaseLine"},
    {u"msoEditing", 0, u"Auto Corner Smooth Symmetric"},
    {u"msoSegment", 0, u"Line Curve"},
    {u"msoLine", 1, u"Single ThinThin ThinThick ThickThin ThickBetweenThin"},
    {u"msoConnector", 1, u"Straight Elbow Curve"},
    {u"msoTextOrientation", 1, u"Horizontal Upward Downward VerticalFarEast Vertical HorizontalRotatedFarEast"},
    {u"msoFill", 1, u"Solid Patterned Gradient Textured Background Picture"},
    {u"msoGradient", 1, u"Horizontal Vertical DiagonalUp DiagonalDown FromCorner FromTitle FromCenter"},
    {u"msoPattern", 1,
     u"5Percent 10Percent 20Percent 25Percent 30Percent 40Percent 50Percent 60Percent 70Percent 75Percent "
     u"80Percent 90Percent DarkHorizontal DarkVertical DarkDownwardDiagonal DarkUpwardDiagonal SmallCheckerBoard "
     u"Trellis LightHorizontal LightVertical LightDownwardDiagonal LightUpwardDiagonal SmallGrid DottedDiamond "
     u"WideDownwardDiagonal WideUpwardDiagonal DashedUpwardDiagonal DashedDownwardDiagonal NarrowVertical "
     u"NarrowHorizontal DashedVertical DashedHorizontal LargeConfetti LargeGrid HorizontalBrick LargeCheckerBoard "
     u"SmallConfetti ZigZag SolidDiamond DiagonalBrick OutlinedDiamond Plaid Sphere Weave DottedGrid Divot Shingle "
     u"Wave"},
    {u"msoTexture", 1,
     u"Papyrus Canvas Denim WovenMat WaterDroplets PaperBag FishFossil Sand GreenMarble WhiteMarble BrownMarble "
     u"Granite Newsprint RecycledPaper Parchment Stationery BlueTissuePaper PinkTissuePaper PurpleMesh Bouquet "
     u"Cork Walnut Oak MediumWood"},
    {u"msoGradient", 1,
     u"EarlySunset LateSunset Nightfall Daybreak Horizon Desert Ocean CalmWater Fire Fog Moss Peacock Wheat "
     u"Parchment Mahogany Rainbow RainbowII Gold GoldII Brass Chrome ChromeII Silver Sapphire"},
    {u"msoArrowhead", 1, u"None Triangle Open Stealth Diamond Oval"},
    {u"msoArrowhead", 1, u"Short LengthMedium Long"},
    {u"msoArrowhead", 1, u"Narrow WidthMedium Wide"},
    {u"msoExtrusion", 1, u"BottomRight Bottom BottomLeft Right None Left TopRight Top TopLeft"},
    {u"msoExtrusionColor", 1, u"Automatic Custom"},
    {u"msoLighting", 1, u"TopLeft Top TopRight Left None Right BottomLeft Bottom BottomRight"},
    {u"msoLighting", 1, u"Dim Normal Bright"},
    {u"msoMaterial", 1, u"Matte Plastic Metal WireFrame"},
    {u"msoTextEffectAlignment", 1, u"Left Centered Right LetterJustify WordJustify StretchJustify"},
    {u"msoOrientation", 1, u"Horizontal Vertical"},
    {u"msoColorType", 1, u"RGB Scheme"},
    {u"msoGradient", 1, u"OneColor TwoColors PresetColors"},
    {u"ppArrange", 1, u"Tiled Cascade"},
    {u"ppBaselineAlign", 1, u"Baseline Top Center FarEast50"},
    {u"ppDateTime", 1,
     u"Mdyy ddddMMMMddyyyy dMMMMyyyy MMMMdyyyy dMMMyy MMMMyy MMyy MMddyyHmm MMddyyhmmAMPM Hmm Hmmss hmmAMPM "
     u"hmmssAMPM"},
    {u"ppPaste", 0, u"Default Bitmap EnhancedMetafile MetafilePicture GIF JPG PNG Text HTML RTF OLEObject Shape"},
    {u"ppSlideSize", 1, u"OnScreen LetterPaper A4Paper 35MM Overhead Banner Custom"},
    {u"msoLine", 1, u"Solid SquareDot RoundDot Dash DashDot DashDotDot LongDash LongDashDot"},
    {u"msoAlign", 0, u"Lefts Centers Rights Tops Middles Bottoms"},
    {u"msoDistribute", 0, u"Horizontally Vertically"},
    {u"msoBar", 0, u"Left Top Right Bottom Floating Popup MenuBar"},
    {u"ppAutoSize", 0, u"None ShapeToFitText"},
    {u"ppBullet", 0, u"None Unnumbered Numbered Picture"},
    {u"ppAlign", 1, u"Left Center Right Justify"},
    {u"ppWindow", 1, u"Normal Minimized Maximized"},
    {u"ppView", 1,
     u"Slide SlideMaster NotesPage HandoutMaster NotesMaster Outline SlideSorter TitleMaster Normal PrintPreview"},
    {u"ppSelection", 0, u"None Slides Shapes Text"},
    {u"ppLayout", 1,
     u"Title Text TwoColumnText Table TextAndChart ChartAndText Orgchart Chart TextAndClipart ClipartAndText TitleOnly "
     u"Blank TextAndObject ObjectAndText LargeObject Object TextAndMediaClip MediaClipAndText ObjectOverText "
     u"TextOverObject TextAndTwoObjects TwoObjectsAndText TwoObjectsOverText FourObjects VerticalText "
     u"ClipArtAndVerticalText VerticalTitleAndText VerticalTitleAndTextOverChart TwoObjects ObjectAndTwoObjects "
     u"TwoObjectsAndObject"},
    {u"ppPlaceholder", 1,
     u"Title Body CenterTitle Subtitle VerticalTitle VerticalBody Object Chart Bitmap MediaClip OrgChart Table "
     u"SlideNumber Header Footer Date"},
    {u"pp", -2, u"SchemeColorMixed"},
    {u"pp", 0, u"NotSchemeColor Background Foreground Shadow Title Fill Accent1 Accent2 Accent3"},
    {u"ppSaveAs", 1, u"Presentation PowerPoint7 PowerPoint4 PowerPoint3 Template RTF Show AddIn"},
    {u"ppSaveAs", 11, u"Default HTML"},
    {u"ppShow", 1, u"All SlideRange NamedSlideShow"},
    {u"ppShowType", 1, u"Speaker Window Kiosk"},
    {u"ppSlideShow", 1, u"ManualAdvance UseSlideTimings RehearseNewTimings"},
    {u"ppSlideShow", 1, u"Running Paused BlackScreen WhiteScreen Done"},
    {u"ppSlideShowPointer", 0, u"None Arrow Pen AlwaysHidden AutoArrow Eraser"},
    {u"ppTransitionSpeed", 1, u"Slow Medium Fast"},
    {u"ppEffect", 0, u"None"},
    {u"ppEffect", 257, u"Cut CutThroughBlack"},
    {u"ppEffect", 513, u"Random"},
    {u"ppEffect", 769, u"BlindsHorizontal BlindsVertical"},
    {u"ppEffect", 1025, u"CheckerboardAcross CheckerboardDown"},
    {u"ppEffect", 1281,
     u"CoverLeft CoverUp CoverRight CoverDown CoverLeftUp CoverRightUp CoverLeftDown CoverRightDown"},
    {u"ppEffect", 1537, u"Dissolve"},
    {u"ppEffect", 1793, u"Fade"},
    {u"ppEffect", 2049,
     u"UncoverLeft UncoverUp UncoverRight UncoverDown UncoverLeftUp UncoverRightUp UncoverLeftDown UncoverRightDown"},
    {u"ppEffect", 2305, u"RandomBarsHorizontal RandomBarsVertical"},
    {u"ppEffect", 2561,
     u"StripsUpLeft StripsUpRight StripsDownLeft StripsDownRight StripsLeftUp StripsRightUp StripsLeftDown "
     u"StripsRightDown"},
    {u"ppEffect", 2817, u"WipeLeft WipeUp WipeRight WipeDown"},
    {u"ppEffect", 3073, u"BoxOut BoxIn"},
    {u"ppEffect", 3585, u"SplitHorizontalOut SplitHorizontalIn SplitVerticalOut SplitVerticalIn"},
    {u"ppEffect", 3845,
     u"CircleOut DiamondOut CombHorizontal CombVertical FadeSmoothly Newsflash PlusOut PushDown PushLeft "
     u"PushRight PushUp Wedge Wheel1Spoke Wheel2Spokes Wheel3Spokes Wheel4Spokes Wheel8Spokes"},
    {u"ppBorder", 1, u"Top Left Bottom Right DiagonalDown DiagonalUp"},
    {u"ppDirection", 1, u"LeftToRight RightToLeft"},
    {u"ppCase", 1, u"Sentence Lower Upper Title Toggle"},
});

/// Constants named by the stem and a number from 1: `msoShadow1` to `msoShadow20`.
struct Numbered {
    std::u16string_view stem;
    std::int32_t last;
    std::int32_t firstValue;
};

constexpr auto numbered = std::to_array<Numbered>({
    {u"msoShadow", 20, 1},
    {u"msoThreeD", 20, 1},
    {u"msoTextEffect", 30, 0},
});

struct Text {
    std::u16string_view name;
    std::u16string_view value;
};

constexpr auto texts = std::to_array<Text>({
    {u"vbCr", u"\r"},
    {u"vbLf", u"\n"},
    {u"vbCrLf", u"\r\n"},
    {u"vbTab", u"\t"},
    {u"vbVerticalTab", u"\v"},
});

/// What follows a stem in a name; nothing where the name starts otherwise.
std::optional<std::u16string_view> after(std::u16string_view stem, std::u16string_view name) {
    if (!equalIgnoringCase(name.substr(0, stem.size()), stem)) {
        return std::nullopt;
    }
    return name.substr(stem.size());
}

std::optional<Value> findIn(const Run& run, std::u16string_view name) {
    const auto wanted = after(run.stem, name);
    if (!wanted || wanted->empty()) {
        return std::nullopt;
    }
    std::int32_t value = run.first;
    for (std::u16string_view rest = run.words; !rest.empty(); ++value) {
        const std::size_t length = std::min(rest.find(u' '), rest.size());
        if (equalIgnoringCase(rest.substr(0, length), *wanted)) {
            return Value(value);
        }
        rest.remove_prefix(std::min(length + 1, rest.size()));
    }
    return std::nullopt;
}

std::optional<Value> findIn(const Numbered& family, std::u16string_view name) {
    const std::string digits = automation::toUtf8(after(family.stem, name).value_or(u""));
    std::int32_t number = 0;
    const auto [stopped, status] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    const bool isWhole = status == std::errc() && stopped == digits.data() + digits.size();
    if (!isWhole || number < 1 || number > family.last) {
        return std::nullopt;
    }
    return Value(family.firstValue + number - 1);
}

std::optional<Value> findIn(const Text& text, std::u16string_view name) {
    return equalIgnoringCase(text.name, name) ? std::optional(Value(text.value)) : std::nullopt;
}

template <typename Table> std::optional<Value> findInTable(const Table& table, std::u16string_view name) {
    for (const auto& row : table) {
        if (auto value = findIn(row, name)) {
            return value;
        }
    }
    return std::nullopt;
}

bool isFormedFrom(std::u16string_view stem, std::u16string_view name) {
    const auto rest = after(stem, name);
    return rest && !rest->empty() && rest->front() != automation::lowerCase(rest->front());
}

} // namespace

std::optional<Value> findConstant(std::u16string_view name) {
    if (equalIgnoringCase(name, u"True") || equalIgnoringCase(name, u"False")) {
        return Value(equalIgnoringCase(name, u"True"));
    }
    if (equalIgnoringCase(name, u"Nothing")) {
        return Value(nullptr);
    }
    if (auto value = findInTable(texts, name)) {
        return value;
    }
    if (auto value = findInTable(numbered, name)) {
        return value;
    }
    return findInTable(runs, name);
}

std::optional<std::u16string> nameOfConstant(std::u16string_view stem, std::int32_t value) {
    for (const Run& run : runs) {
        if (run.stem == stem && value >= run.first) {
            std::u16string_view rest = run.words;
            for (std::int32_t at = run.first; at != value && !rest.empty(); ++at) {
                rest.remove_prefix(std::min(std::min(rest.find(u' '), rest.size()) + 1, rest.size()));
            }
            if (!rest.empty()) {
                return std::u16string(stem).append(rest.substr(0, rest.find(u' ')));
            }
        }
    }
    for (const Numbered& family : numbered) {
        if (family.stem == stem && value >= family.firstValue && value < family.firstValue + family.last) {
            return std::u16string(stem) + automation::decimal(value - family.firstValue + 1);
        }
    }
    return std::nullopt;
}

std::vector<std::u16string> constantNames() {
    std::vector<std::u16string> names{u"True", u"False", u"Nothing"};
    for (const Text& text : texts) {
        names.emplace_back(text.name);
    }
    for (const Numbered& family : numbered) {
        for (std::int32_t number = 1; number <= family.last; ++number) {
            names.push_back(std::u16string(family.stem) + automation::decimal(number));
        }
    }
    for (const Run& run : runs) {
        for (std::u16string_view rest = run.words; !rest.empty();) {
            const std::size_t length = std::min(rest.find(u' '), rest.size());
            names.push_back(std::u16string(run.stem).append(rest.substr(0, length)));
            rest.remove_prefix(std::min(length + 1, rest.size()));
        }
    }
    return names;
}

bool looksLikeConstant(std::u16string_view name) {
    return isFormedFrom(u"mso", name) || isFormedFrom(u"pp", name) || isFormedFrom(u"vb", name);
}

std::vector<std::u16string_view> reservedNames() {
    return {u"Application", u"Array",      u"Files",    u"Host", u"LBound",
            u"Learner",     u"PowerPoint", u"Registry", u"RGB",  u"UBound"};
}

bool isReserved(std::u16string_view name) {
    const std::vector<std::u16string_view> reserved = reservedNames();
    return std::any_of(reserved.begin(), reserved.end(),
                       [&](std::u16string_view word) { return equalIgnoringCase(word, name); });
}

} // namespace host::language
