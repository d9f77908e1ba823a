#include "host/language/PowerPointNames.h"

#include "automation/Text.h"

#include <algorithm>
#include <array>

namespace host::language {

namespace {

using automation::equalIgnoringCase;

/// The members that PowerPoint 2003 publishes of a class, with blanks between them.
struct PublishedClass {
    std::u16string_view name;
    std::u16string_view members;
};

constexpr auto classes = std::to_array<PublishedClass>({
    {u"Application",
     u"Activate Active ActivePresentation ActivePrinter ActiveWindow AddIns AnswerWizard Application Assistant "
     u"AutoCorrect AutomationSecurity Build Caption COMAddIns CommandBars Creator DefaultWebOptions Dialogs "
     u"DisplayAlerts DisplayGridLines FeatureInstall FileDialog FileSearch Height Help HWND LanguageSettings Left "
     u"Name NewPresentation OperatingSystem Options Path Presentations ProductCode Quit Run ShowStartupDialog "
     u"ShowWindowsInTaskbar SlideShowWindows Top VBE Version Visible Width Windows WindowState"},
    {u"Borders", u"Application Count Item Parent"},
    {u"BulletFormat",
     u"Application Character Font Number Parent Picture RelativeSize StartValue Style Type UseTextColor UseTextFont "
     u"Visible"},
    {u"Cell", u"Application Borders Merge Parent Select Selected Shape Split"},
    {u"CellRange", u"Application Borders Count Item Parent"},
    {u"ColorFormat", u"Application Creator Parent RGB SchemeColor TintAndShade Type"},
    {u"Column", u"Application Cells Delete Parent Select Width"},
    {u"Columns", u"Add Application Count Item Parent"},
    {u"CommandBar",
     u"accDoDefaultAction accHitTest accLocation accNavigate accSelect AdaptiveMenu Application BuiltIn Context "
     u"Controls Creator Delete Enabled FindControl Height Id Index Left Name NameLocal Parent Position Protection "
     u"Reset RowIndex ShowPopup Top Type Visible Width"},
    {u"CommandBarControl",
     u"accDoDefaultAction accHitTest accLocation accNavigate accSelect accState Application BeginGroup BuiltIn "
     u"Caption Copy Creator Delete DescriptionText Enabled Execute Height HelpContextId HelpFile Id Index "
     u"IsPriorityDropped Left Move OLEUsage OnAction Parameter Parent Priority Reset SetFocus Tag TooltipText Top "
     u"Type Visible Width"},
    {u"CommandBarControls", u"Add Application Count Creator Item Parent"},
    {u"CommandBars",
     u"ActionControl ActiveMenuBar AdaptiveMenus Add AddEx Application Count Creator DisableAskAQuestionDropdown "
     u"DisableCustomize DisplayFonts DisplayKeysInTooltips DisplayTooltips FindControl FindControls Item "
     u"LargeButtons MenuAnimationStyle Parent ReleaseFocus"},
    {u"ConnectorFormat",
     u"Application BeginConnect BeginConnected BeginConnectedShape BeginConnectionSite BeginDisconnect Creator "
     u"EndConnect EndConnected EndConnectedShape EndConnectionSite EndDisconnect Parent Type"},
    {u"DocumentWindow",
     u"Activate Active ActivePane Application BlackAndWhite Caption Close FitToPage Height HWND LargeScroll Left "
     u"NewWindow Panes Parent PointsToScreenPixelsX PointsToScreenPixelsY Presentation RangeFromPoint "
     u"ScrollIntoView Selection SmallScroll SplitHorizontal SplitVertical Top View ViewType Width WindowState"},
    {u"DocumentWindows", u"Application Arrange Count Item Parent"},
    {u"FillFormat",
     u"Application BackColor Background Creator ForeColor GradientColorType GradientDegree GradientStyle "
     u"GradientVariant OneColorGradient Parent Pattern Patterned PresetGradient PresetGradientType PresetTexture "
     u"PresetTextured Solid TextureName TextureType Transparency TwoColorGradient Type UserPicture UserTextured "
     u"Visible"},
    {u"Font",
     u"Application AutoRotateNumbers BaselineOffset Bold Color Embeddable Embedded Emboss Italic Name NameAscii "
     u"NameComplexScript NameFarEast NameOther Parent Shadow Size Subscript Superscript Underline"},
    {u"FreeformBuilder", u"AddNodes Application ConvertToShape Creator Parent"},
    {u"GroupShapes", u"Application Count Creator Item Parent Range"},
    {u"LineFormat",
     u"Application BackColor BeginArrowheadLength BeginArrowheadStyle BeginArrowheadWidth Creator DashStyle "
     u"EndArrowheadLength EndArrowheadStyle EndArrowheadWidth ForeColor InsetPen Parent Pattern Style Transparency "
     u"Visible Weight"},
    {u"PageSetup",
     u"Application FirstSlideNumber NotesOrientation Parent SlideHeight SlideOrientation SlideSize SlideWidth"},
    {u"Pane", u"Activate Active Application Parent ViewType"},
    {u"Panes", u"Application Count Item Parent"},
    {u"ParagraphFormat",
     u"Alignment Application BaseLineAlignment Bullet FarEastLineBreakControl HangingPunctuation LineRuleAfter "
     u"LineRuleBefore LineRuleWithin Parent SpaceAfter SpaceBefore SpaceWithin TextDirection WordWrap"},
    {u"PlaceholderFormat", u"Application Parent Type"},
    {u"Placeholders", u"Application Count Item Parent"},
    {u"Presentation",
     u"AddBaseline AddTitleMaster AddToFavorites Application ApplyTemplate BuiltInDocumentProperties CanCheckIn "
     u"CheckIn Close ColorSchemes CommandBars Container CustomDocumentProperties DefaultLanguageID DefaultShape "
     u"Designs DisplayComments DocumentLibraryVersions EndReview EnvelopeVisible Export ExtraColors "
     u"FarEastLineBreakLanguage FarEastLineBreakLevel FollowHyperlink Fonts FullName GridDistance HandoutMaster "
     u"HasRevisionInfo HasTitleMaster HTMLProject LayoutDirection MakeIntoTemplate Merge Name NewWindow "
     u"NoLineBreakAfter NoLineBreakBefore NotesMaster PageSetup Parent Password PasswordEncryptionAlgorithm "
     u"PasswordEncryptionFileProperties PasswordEncryptionKeyLength PasswordEncryptionProvider Path Permission "
     u"PrintOptions PrintOut PublishObjects ReadOnly RemoveBaseline RemovePersonalInformation ReplyWithChanges Save "
     u"SaveAs SaveCopyAs Saved SendFaxOverInternet SendForReview SetPasswordEncryptionOptions SharedWorkspace "
     u"Signatures SlideMaster Slides SlideShowSettings SlideShowWindow SnapToGrid Sync Tags TemplateName "
     u"TitleMaster UpdateLinks VBASigned VBProject WebOptions WebPagePreview Windows WritePassword"},
    {u"Presentations", u"Add Application CanCheckOut CheckOut Count Item Open Parent"},
    {u"Row", u"Application Cells Delete Height Parent Select"},
    {u"Rows", u"Add Application Count Item Parent"},
    {u"Selection",
     u"Application ChildShapeRange Copy Cut Delete HasChildShapeRange Parent ShapeRange SlideRange TextRange Type "
     u"Unselect"},
    {u"ShadowFormat",
     u"Application Creator ForeColor IncrementOffsetX IncrementOffsetY Obscured OffsetX OffsetY Parent Transparency "
     u"Type Visible"},
    {u"Shape",
     u"ActionSettings Adjustments AlternativeText AnimationSettings Application Apply AutoShapeType BlackWhiteMode "
     u"Callout CanvasCropBottom CanvasCropLeft CanvasCropRight CanvasCropTop CanvasItems Child ConnectionSiteCount "
     u"Connector ConnectorFormat Copy Creator Cut Delete Diagram DiagramNode Duplicate Export Fill Flip GroupItems "
     u"HasDiagram HasDiagramNode HasTable HasTextFrame Height HorizontalFlip Id IncrementLeft IncrementRotation "
     u"IncrementTop Left Line LinkFormat LockAspectRatio MediaType Name Nodes OLEFormat Parent ParentGroup PickUp "
     u"PictureFormat PlaceholderFormat RerouteConnections Rotation RTF ScaleHeight ScaleWidth Script Select "
     u"SetShapesDefaultProperties Shadow SoundFormat Table Tags TextEffect TextFrame ThreeD Top Type Ungroup "
     u"VerticalFlip Vertices Visible Width ZOrder ZOrderPosition"},
    {u"ShapeNode", u"Application Creator EditingType Parent Points SegmentType"},
    {u"ShapeNodes", u"Application Count Creator Delete Insert Item Parent SetEditingType SetPosition SetSegmentType"},
    {u"ShapeRange",
     u"ActionSettings Adjustments Align AlternativeText AnimationSettings Application Apply AutoShapeType "
     u"BlackWhiteMode Callout CanvasCropBottom CanvasCropLeft CanvasCropRight CanvasCropTop CanvasItems Child "
     u"ConnectionSiteCount Connector ConnectorFormat Copy Count Creator Cut Delete Diagram DiagramNode Distribute "
     u"Duplicate Export Fill Flip GetPolygonalRepresentation Group GroupItems HasDiagram HasDiagramNode HasTable "
     u"HasTextFrame Height HorizontalFlip Id IncrementLeft IncrementRotation IncrementTop Item Left Line LinkFormat "
     u"LockAspectRatio MediaType Name Nodes OLEFormat Parent ParentGroup PickUp PictureFormat PlaceholderFormat "
     u"Regroup RerouteConnections Rotation RTF ScaleHeight ScaleWidth Script Select SetShapesDefaultProperties "
     u"Shadow SoundFormat Table Tags TextEffect TextFrame ThreeD Top Type Ungroup VerticalFlip Vertices Visible "
     u"Width ZOrder ZOrderPosition"},
    {u"Shapes",
     u"AddCallout AddCanvas AddComment AddConnector AddCurve AddDiagram AddLabel AddLine AddMediaObject "
     u"AddOLEObject AddPicture AddPlaceholder AddPolyline AddShape AddTable AddTextbox AddTextEffect AddTitle "
     u"Application BuildFreeform Count Creator HasTitle Item Parent Paste PasteSpecial Placeholders Range SelectAll "
     u"Title"},
    {u"Slide",
     u"Application ApplyTemplate Background ColorScheme Comments Copy Cut Delete Design DisplayMasterShapes "
     u"Duplicate Export FollowMasterBackground HeadersFooters Hyperlinks Layout Master MoveTo Name NotesPage Parent "
     u"PrintSteps Scripts Select Shapes SlideID SlideIndex SlideNumber SlideShowTransition Tags TimeLine"},
    {u"SlideRange",
     u"Application ApplyTemplate Background ColorScheme Comments Copy Count Cut Delete Design DisplayMasterShapes "
     u"Duplicate Export FollowMasterBackground HeadersFooters Hyperlinks Item Layout Master MoveTo Name NotesPage "
     u"Parent PrintSteps Scripts Select Shapes SlideID SlideIndex SlideNumber SlideShowTransition Tags TimeLine"},
    {u"Slides", u"Add Application Count FindBySlideID InsertFromFile Item Parent Paste Range"},
    {u"Table", u"Application Cell Columns Parent Rows TableDirection"},
    {u"Tags", u"Add AddBinary Application BinaryValue Count Delete Item Name Parent Value"},
    {u"TextEffectFormat",
     u"Alignment Application Creator FontBold FontItalic FontName FontSize KernedPairs NormalizedHeight Parent "
     u"PresetShape PresetTextEffect RotatedChars Text ToggleVerticalText Tracking"},
    {u"TextFrame",
     u"Application AutoSize Creator DeleteText HasText HorizontalAnchor MarginBottom MarginLeft MarginRight "
     u"MarginTop Orientation Parent Ruler TextRange VerticalAnchor WordWrap"},
    {u"TextRange",
     u"ActionSettings AddPeriods Application BoundHeight BoundLeft BoundTop BoundWidth ChangeCase Characters Copy "
     u"Count Cut Delete Find Font IndentLevel InsertAfter InsertBefore InsertDateTime InsertSlideNumber "
     u"InsertSymbol LanguageID Length Lines LtrRun ParagraphFormat Paragraphs Parent Paste PasteSpecial "
     u"RemovePeriods Replace RotatedBounds RtlRun Runs Select Sentences Start Text TrimText Words"},
    {u"ThreeDFormat",
     u"Application Creator Depth ExtrusionColor ExtrusionColorType IncrementRotationX IncrementRotationY Parent "
     u"Perspective PresetExtrusionDirection PresetLightingDirection PresetLightingSoftness PresetMaterial "
     u"PresetThreeDFormat ResetRotation RotationX RotationY SetExtrusionDirection SetThreeDFormat Visible"},
    {u"View",
     u"Application DisplaySlideMiniature GotoSlide Parent Paste PasteSpecial PrintOptions PrintOut Slide Type Zoom "
     u"ZoomToFit"},
});

/// The names of its other classes.
constexpr std::u16string_view otherClasses =
    u"ActionSetting ActionSettings AddIn AddIns Adjustments AnimationBehavior AnimationBehaviors AnimationPoint "
    u"AnimationPoints AnimationSettings AutoCorrect CalloutFormat CanvasShapes ColorEffect "
    u"ColorScheme ColorSchemes CommandEffect Comment Comments DefaultWebOptions "
    u"Design Designs Diagram DiagramNode DiagramNodeChildren DiagramNodes Effect EffectInformation EffectParameters "
    u"ExtraColors FilterEffect Fonts HeaderFooter HeadersFooters Hyperlink Hyperlinks LinkFormat Master "
    u"MotionEffect NamedSlideShow NamedSlideShows ObjectVerbs OCXExtender OLEFormat Options PictureFormat "
    u"PlaySettings PrintOptions PrintRange PrintRanges PropertyEffect PublishObject PublishObjects RGBColor "
    u"RotationEffect Ruler RulerLevel RulerLevels ScaleEffect Sequence Sequences SetEffect "
    u"SlideShowSettings SlideShowTransition SlideShowView SlideShowWindow SlideShowWindows SoundEffect SoundFormat "
    u"TabStop TabStops TextStyle TextStyleLevel TextStyleLevels TextStyles TimeLine Timing WebOptions";

std::vector<std::u16string_view> wordsOf(std::u16string_view text) {
    std::vector<std::u16string_view> words;
    while (!text.empty()) {
        const std::size_t length = std::min(text.find(u' '), text.size());
        words.push_back(text.substr(0, length));
        text.remove_prefix(std::min(length + 1, text.size()));
    }
    return words;
}

bool isOneOf(const std::vector<std::u16string_view>& words, std::u16string_view name) {
    return std::any_of(words.begin(), words.end(),
                       [name](std::u16string_view word) { return equalIgnoringCase(word, name); });
}

} // namespace

std::vector<std::u16string_view> membersInPowerPoint(std::u16string_view className) {
    const auto* const found = std::find_if(classes.begin(), classes.end(), [className](const PublishedClass& each) {
        return equalIgnoringCase(each.name, className);
    });
    return found == classes.end() ? std::vector<std::u16string_view>() : wordsOf(found->members);
}

bool isMemberInPowerPoint(std::u16string_view className, std::u16string_view name) {
    return isOneOf(membersInPowerPoint(className), name);
}

std::vector<std::u16string_view> classesOfPowerPoint() {
    std::vector<std::u16string_view> all = wordsOf(otherClasses);
    for (const PublishedClass& each : classes) {
        all.push_back(each.name);
    }
    return all;
}

bool isClassOfPowerPoint(std::u16string_view name) {
    return isOneOf(classesOfPowerPoint(), name);
}

} // namespace host::language
