// SPDX-License-Identifier: MIT
#include "ui/windows/preferences_view.h"

#include "model/notification_names.h"
#include "platform/notification_center.h"
#include "render/color_codec.h"
#include "ui/controls/color_well.h"
#include "ui/controls/group_panel.h"
#include "ui/controls/switch_box.h"
#include "ui/controls/text_label.h"
#include "ui/theme/symbols.h"

#include <QEvent>
#include <QFileDialog>
#include <QGridLayout>
#include <QHideEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <cmath>

namespace quillon {

namespace {

struct ColorLabel {
    HighlightRole role;
    // None for a colour that has no row.
    const char* text;
};

// One for each role, in their order. The error colour has no row: it goes with the fatal one for
// the eye, and is kept as it is.
constexpr std::array kColorLabels{
    ColorLabel{HighlightRole::Fatal, QT_TRANSLATE_NOOP("PreferencesView", "Fatal / Error")},
    ColorLabel{HighlightRole::Error, nullptr},
    ColorLabel{HighlightRole::Warning,
               QT_TRANSLATE_NOOP("PreferencesView", "Warning (PHP Warning)")},
    ColorLabel{HighlightRole::Notice, QT_TRANSLATE_NOOP("PreferencesView", "Notice (PHP Notice)")},
    ColorLabel{HighlightRole::Deprecated, QT_TRANSLATE_NOOP("PreferencesView", "Deprecated")},
    ColorLabel{HighlightRole::Info, QT_TRANSLATE_NOOP("PreferencesView", "Info")},
    ColorLabel{HighlightRole::Debug, QT_TRANSLATE_NOOP("PreferencesView", "Debug")},
    ColorLabel{HighlightRole::Unknown, nullptr},
    ColorLabel{HighlightRole::Date,
               QT_TRANSLATE_NOOP("PreferencesView", "Horodatage (date/heure)")},
    ColorLabel{HighlightRole::ArrayDump,
               QT_TRANSLATE_NOOP("PreferencesView", "Dump (array / var_dump)")},
};
static_assert(std::equal(kColorLabels.begin(), kColorLabels.end(), kHighlightPreferences.begin(),
                         kHighlightPreferences.end(),
                         [](const ColorLabel& label, const HighlightPreference& preference) {
                             return label.role == preference.role;
                         }));

// A preference file edited by hand may hold any number.
int sliderPosition(double points)
{
    return static_cast<int>(std::clamp<double>(points, kSmallestFontSize, kLargestFontSize));
}

QString sizeText(double points)
{
    return PreferencesView::tr("%1 pt").arg(QString::number(std::trunc(points), 'f', 0));
}

// The size changes under the pointer, so its text must not move: a font whose digits differ in
// width gives way to the monospaced one.
QFont equalDigitsFont(const QFont& font)
{
    const QFontMetricsF metrics(font);
    for (char16_t digit = u'1'; digit <= u'9'; ++digit) {
        if (metrics.horizontalAdvance(QChar(digit)) != metrics.horizontalAdvance(QChar(u'0'))) {
            return monospacedSystemFont(font.pixelSize(), FontWeight::Regular);
        }
    }
    return font;
}

} // namespace

PreferencesView::PreferencesView(UserDefaults& defaults, NotificationCenter& center,
                                 FolderChooser folderChooser, QWidget* parent)
    : QScrollArea(parent), m_defaults(defaults), m_center(center),
      m_folderChooser(std::move(folderChooser)),
      m_wrapDefault(defaults, preference_keys::kWrapDefault),
      m_fontDefault(defaults, preference_keys::kFontDefault),
      m_defaultFolder(defaults, preference_keys::kDefaultFolder)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Tab goes from control to control; the view scrolls along by itself.
    setFocusPolicy(Qt::NoFocus);

    auto* const content = new QWidget;
    auto* const column = new QVBoxLayout(content);
    column->setContentsMargins(20, 20, 20, 20);
    column->setSpacing(18);
    column->addWidget(new TextLabel(tr("Préférences"), TextStyle::Title2, FontWeight::Bold));
    column->addWidget(makeColorGroup());
    column->addWidget(makeDisplayGroup());
    column->addWidget(makeFolderGroup());
    column->addLayout(makeRestoreRow());
    column->addStretch(1);
    setWidget(content);

    showStoredValues();
    m_defaultsChange = m_center.observe(kUserDefaultsDidChange, [this] { showStoredValues(); });
}

PreferencesView::~PreferencesView() = default;

void PreferencesView::chooseFolder()
{
    const QString title = tr("Choisir un dossier par défaut");
    std::optional<QString> folder;
    if (m_folderChooser) {
        folder = m_folderChooser(title);
    } else {
        folder = QFileDialog::getExistingDirectory(window(), title);
    }
    if (folder && !folder->isEmpty()) {
        m_defaultFolder.setValue(*folder);
    }
}

void PreferencesView::restoreDefaults()
{
    for (const auto& [key, value] : defaultPreferences()) {
        m_defaults.setObject(value, key);
    }
}

void PreferencesView::changeEvent(QEvent* event)
{
    QScrollArea::changeEvent(event);
    // The label colour, which stands for a text that is no colour, is another one now.
    if (event->type() == QEvent::PaletteChange && m_folderEdit != nullptr) {
        showStoredValues();
    }
}

void PreferencesView::hideEvent(QHideEvent* event)
{
    QScrollArea::hideEvent(event);
    // The window system's own hiding is minimising or changing the desktop.
    if (!event->spontaneous()) {
        closeOtherPanels(nullptr);
        m_center.post(kPrefsDidClose);
    }
}

QWidget* PreferencesView::makeColorGroup()
{
    auto* const group = new GroupPanel(tr("Couleurs de surlignage"));
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(10);
    grid->setColumnStretch(0, 1);
    int row = 0;
    for (const auto& [role, label] : kColorLabels) {
        if (label == nullptr) {
            continue;
        }
        auto* const text = new TextLabel(tr(label), TextStyle::Body);
        text->setContentsMargins(0, 4, 0, 4);
        auto* const well = makeColorWell(preferenceOf(role).key, text->text());
        auto* const padded = new QHBoxLayout;
        padded->setContentsMargins(6, 4, 6, 4);
        padded->addWidget(well);
        text->setBuddy(well);
        grid->addWidget(text, row, 0);
        grid->addLayout(padded, row, 1);
        ++row;
    }
    group->setContent(grid);
    return group;
}

ColorWell* PreferencesView::makeColorWell(QLatin1StringView key, const QString& label)
{
    auto* const well = new ColorWell;
    DefaultsField<QString> field(m_defaults, key);
    well->setObjectName(field.key());
    well->setAccessibleName(label);
    connect(well, &ColorWell::colorPicked, this, [field](const QColor& picked) mutable {
        field.setValue(hexFromColor(
            Color::rgb(picked.redF(), picked.greenF(), picked.blueF(), picked.alphaF())));
    });
    connect(well, &ColorWell::panelOpened, this, [this, well] { closeOtherPanels(well); });
    m_colorRows.push_back({std::move(field), well});
    return well;
}

QWidget* PreferencesView::makeDisplayGroup()
{
    auto* const group = new GroupPanel(tr("Affichage"));
    auto* const column = new QVBoxLayout;
    column->setSpacing(12);
    m_wrapSwitch = new SwitchBox(tr("Retour à la ligne par défaut"));
    m_wrapSwitch->setObjectName(m_wrapDefault.key());
    connect(m_wrapSwitch, &QCheckBox::toggled, this,
            [this](bool isOn) { m_wrapDefault.setValue(isOn); });
    column->addWidget(m_wrapSwitch, 0, Qt::AlignLeading);
    column->addLayout(makeSizeRow());
    group->setContent(column);
    return group;
}

QHBoxLayout* PreferencesView::makeSizeRow()
{
    auto* const label = new TextLabel(tr("Taille de police par défaut"), TextStyle::Body);
    m_sizeSlider = new QSlider(Qt::Horizontal);
    m_sizeSlider->setObjectName(m_fontDefault.key());
    m_sizeSlider->setAccessibleName(label->text());
    m_sizeSlider->setRange(kSmallestFontSize, kLargestFontSize);
    m_sizeSlider->setSingleStep(1);
    m_sizeSlider->setPageStep(1);
    m_sizeSlider->setFixedWidth(200);
    connect(m_sizeSlider, &QSlider::valueChanged, this,
            [this](int points) { m_fontDefault.setValue(points); });
    auto* const text = new TextLabel(QString(), TextStyle::Body);
    text->setEmphasis(TextEmphasis::Secondary);
    text->setFont(equalDigitsFont(text->font()));
    text->setObjectName(QStringLiteral("sizeText"));
    m_sizeText = text;
    label->setBuddy(m_sizeSlider);

    auto* const row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(label);
    row->addWidget(m_sizeSlider);
    row->addWidget(m_sizeText);
    row->addStretch(1);
    return row;
}

QWidget* PreferencesView::makeFolderGroup()
{
    auto* const group = new GroupPanel(tr("Dossier favori"));
    m_folderEdit = new QLineEdit;
    m_folderEdit->setObjectName(m_defaultFolder.key());
    m_folderEdit->setTextMargins(4, 0, 4, 0);
    m_folderEdit->setPlaceholderText(tr("Chemin (optionnel)…"));
    m_folderEdit->setAccessibleName(group->title());
    connect(m_folderEdit, &QLineEdit::textEdited, this,
            [this](const QString& typed) { m_defaultFolder.setValue(typed); });
    auto* const choose = new QPushButton(symbolIcon(Symbol::Folder), tr("Choisir…"));
    choose->setObjectName(QStringLiteral("chooseFolder"));
    connect(choose, &QPushButton::clicked, this, &PreferencesView::chooseFolder);

    auto* const row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(m_folderEdit, 1);
    row->addWidget(choose);
    group->setContent(row);
    return group;
}

QHBoxLayout* PreferencesView::makeRestoreRow()
{
    auto* const restore = new QPushButton(tr("Restaurer les valeurs par défaut"));
    restore->setObjectName(QStringLiteral("restoreDefaults"));
    connect(restore, &QPushButton::clicked, this, &PreferencesView::restoreDefaults);
    auto* const row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(restore);
    return row;
}

void PreferencesView::closeOtherPanels(const ColorWell* kept)
{
    for (const ColorRow& row : m_colorRows) {
        if (row.well != kept) {
            row.well->closePanel();
        }
    }
}

void PreferencesView::showStoredValues()
{
    for (const ColorRow& row : m_colorRows) {
        const Color shown =
            colorFromHex(row.field.value()).value_or(Color::system(SystemColor::Label));
        row.well->setColor(resolvedColor(shown, palette()));
    }
    const QSignalBlocker switchBlocker(m_wrapSwitch);
    m_wrapSwitch->setChecked(m_wrapDefault.value());
    const QSignalBlocker sliderBlocker(m_sizeSlider);
    m_sizeSlider->setValue(sliderPosition(m_fontDefault.value()));
    m_sizeText->setText(sizeText(m_fontDefault.value()));
    // Left alone while it is the text already, for the caret's sake.
    if (m_folderEdit->text() != m_defaultFolder.value()) {
        m_folderEdit->setText(m_defaultFolder.value());
    }
}

} // namespace quillon
