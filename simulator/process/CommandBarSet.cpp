#include "simulator/process/CommandBarSet.h"

#include "automation/Text.h"

#include <algorithm>

namespace simulator {

namespace {

using Controls = std::vector<CommandBarControl>;

Controls captioned(std::initializer_list<const char16_t*> captions) {
    Controls controls;
    for (const char16_t* const caption : captions) {
        controls.push_back({.caption = caption});
    }
    return controls;
}

/// The context menu of a freeform whose points are not being edited.
Controls curveControls() {
    Controls controls =
        captioned({u"&Couper", u"Co&pier", u"C&oller", u"&Ajouter du texte", u"&Groupe", u"O&rdre",
                   u"&Fermer la courbe", u"&Modifier les points", u"Utiliser comme forme automatique par &défaut",
                   u"&Format de la forme automatique..."});
    controls[6].command = CommandBarControl::Command::CloseCurve;
    return controls;
}

CommandBar toolbar(const char16_t* name, Controls controls, MsoBarPosition position = msoBarFloating) {
    return {.name = name, .position = position, .controls = std::move(controls)};
}

CommandBar shown(CommandBar bar) {
    bar.visible = true;
    return bar;
}

CommandBar contextMenu(const char16_t* name, Controls controls) {
    return {.name = name, .type = msoBarTypePopup, .position = msoBarPopup, .controls = std::move(controls)};
}

CommandBar menuBar() {
    return {.name = u"Menu Bar",
            .type = msoBarTypeMenuBar,
            .visible = true,
            .controls = captioned({u"&Fichier", u"&Edition", u"&Affichage", u"&Insertion", u"Forma&t", u"&Outils",
                                   u"&Diaporama", u"Fe&nêtre", u"&?"})};
}

std::vector<CommandBar> installed() {
    return {
        menuBar(),
        shown(toolbar(
            u"Standard",
            captioned({u"&Nouveau", u"&Ouvrir", u"&Enregistrer", u"Im&primer", u"Aperçu a&vant impression",
                       u"Orthogra&phe...", u"Co&uper", u"Co&pier", u"C&oller", u"Ann&uler", u"&Rétablir", u"&Zoom :"}),
            msoBarTop)),
        shown(toolbar(u"Formatting",
                      captioned({u"&Police :", u"&Taille :", u"&Gras", u"&Italique", u"&Souligné", u"O&mbre",
                                 u"Aligné à &gauche", u"&Centré", u"Aligné à &droite", u"&Couleur de police"}),
                      msoBarTop)),
        toolbar(u"Slide Sorter", captioned({u"&Masquer la diapositive", u"Transit&ion"}), msoBarTop),
        toolbar(u"Outlining", captioned({u"&Hausser", u"&Abaisser", u"&Monter", u"&Descendre"}), msoBarLeft),
        shown(
            toolbar(u"Drawing",
                    captioned({u"Dess&in", u"Sélectionner les &objets", u"Formes a&utomatiques", u"&Trait", u"&Flèche",
                               u"&Rectangle", u"&Ellipse", u"&Zone de texte", u"&Insérer un objet WordArt...",
                               u"&Couleur de remplissage", u"Couleur du &contour", u"Style &ombre", u"Style &3D"}),
                    msoBarBottom)),
        toolbar(u"Picture", captioned({u"Insérer une &image...", u"&Couleur", u"&Rogner"})),
        toolbar(u"WordArt", captioned({u"&WordArt...", u"&Modifier le texte...", u"&Galerie WordArt..."})),
        toolbar(u"3-D Settings", captioned({u"Activer/désactiver &3D", u"&Profondeur", u"&Direction"})),
        toolbar(u"Shadow Settings", captioned({u"Activer/désactiver l'&ombre", u"Couleur de l'o&mbre"})),
        toolbar(u"Organization Chart", captioned({u"&Insérer une forme", u"&Disposition"})),
        toolbar(u"Tables and Borders", captioned({u"&Dessiner un tableau", u"&Gomme", u"&Tableau"}), msoBarTop),
        toolbar(u"Web", captioned({u"P&récédente", u"&Suivante", u"&Adresse :"}), msoBarTop),
        toolbar(u"Control Toolbox", captioned({u"&Propriétés", u"Case à &cocher"})),
        toolbar(u"Visual Basic", captioned({u"Exécuter &macro...", u"&Visual Basic Editor"})),
        toolbar(u"Reviewing", captioned({u"&Modification suivante", u"&Insérer un commentaire"}), msoBarTop),
        shown(toolbar(u"Task Pane", {}, msoBarRight)),
        toolbar(u"Diagram", captioned({u"&Insérer une forme", u"&Disposition"})),
        toolbar(u"Drawing Canvas", captioned({u"&Ajuster", u"&Développer"})),
        toolbar(u"Animation Effects", captioned({u"&Effets"})),
        toolbar(u"Revisions", captioned({u"&Accepter", u"&Refuser"}), msoBarTop),
        contextMenu(u"Slides", captioned({u"&Couper", u"Co&pier", u"C&oller", u"&Nouvelle diapositive"})),
        contextMenu(u"Shapes", captioned({u"&Couper", u"Co&pier", u"C&oller", u"&Groupe", u"O&rdre"})),
        contextMenu(u"Connector", captioned({u"&Couper", u"Co&pier", u"C&oller", u"&Groupe", u"O&rdre"})),
        contextMenu(u"Curve", curveControls()),
        contextMenu(u"Curve Node", captioned({u"&Ajouter un point", u"&Supprimer le point", u"&Fermer la courbe"})),
        contextMenu(u"Curve Segment", captioned({u"&Ajouter un point", u"&Supprimer le segment"})),
        contextMenu(u"WordArt Context Menu", captioned({u"&Couper", u"Co&pier", u"C&oller", u"&Modifier le texte..."})),
        contextMenu(u"Text", captioned({u"&Couper", u"Co&pier", u"C&oller", u"&Police...", u"&Synonymes..."})),
    };
}

} // namespace

CommandBarSet::CommandBarSet() : bars(installed()) {}

std::size_t CommandBarSet::find(std::u16string_view name) const noexcept {
    const auto hasName = [name](const CommandBar& bar) { return automation::equalIgnoringCase(bar.name, name); };
    return static_cast<std::size_t>(std::find_if(bars.begin(), bars.end(), hasName) - bars.begin());
}

} // namespace simulator
