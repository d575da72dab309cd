// SPDX-License-Identifier: MIT
#include "ui/windows/toolbar_row.h"

#include "model/log_view_model.h"
#include "render/preference_keys.h"
#include "render/status_text.h"
#include "ui/controls/divider.h"
#include "ui/controls/symbol_label.h"
#include "ui/controls/toolbar_bindings.h"
#include "ui/windows/toolbar_search_field.h"

#include <QHBoxLayout>
#include <QSlider>

namespace quillon {

namespace {

constexpr int kSidePadding = 16;
constexpr int kVerticalPadding = 6;
constexpr int kItemSpacing = 10;
constexpr int kLevelSpacing = 8;
constexpr int kTextSizeSpacing = 4;
constexpr int kDividerHeight = 20;
constexpr int kSymbolSize = 18;
constexpr int kLevelSymbolSize = 16;
constexpr int kSmallSymbolSize = 16;
constexpr int kSliderWidth = 120;

// A group of controls that stands in the row as one item.
QHBoxLayout* groupIn(QWidget* group, int spacing)
{
    auto* const layout = new QHBoxLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    return layout;
}

} // namespace

ToolbarRow::ToolbarRow(LogViewModel& viewModel, QWidget* parent)
    : QWidget(parent), m_viewModel(viewModel)
{
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(kSidePadding, kVerticalPadding, kSidePadding, kVerticalPadding);
    row->setSpacing(kItemSpacing);
    addFileControls(*row);
    auto* const divider = new Divider(Qt::Vertical, this);
    divider->setFixedHeight(kDividerHeight);
    row->addWidget(divider);
    addTextSizeGroup(*row);
    row->addStretch(1);
    addLevelGroup(*row);
    addSearchField(*row);
    addClearButton(*row);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void ToolbarRow::addFileControls(QHBoxLayout& row)
{
    auto* const open =
        new ToolbarButton(ToolbarButton::Kind::Action,
                          {Symbol::OpenLog, kSymbolSize, tr("Ouvrir un fichier de log")}, this);
    connect(open, &QToolButton::clicked, this, &ToolbarRow::openRequested);
    row.addWidget(open);

    ToolbarButton* const follow = addToggle(
        row, m_viewModel.followTail, {Symbol::Follow, kSymbolSize, tr("Suivre en direct (tail)")});
    m_bindings.push_back(m_viewModel.path.subscribe(
        [follow](const std::optional<QString>& path) { follow->setEnabled(path.has_value()); }));

    addToggle(row, m_viewModel.wrapLines,
              {Symbol::WrapLines, kSymbolSize, tr("Activer le retour à la ligne")});
}

void ToolbarRow::addTextSizeGroup(QHBoxLayout& row)
{
    auto* const group = new QWidget(this);
    group->setToolTip(tr("Taille du texte"));
    auto* const slider = new QSlider(Qt::Horizontal, group);
    slider->setRange(kSmallestFontSize, kLargestFontSize);
    slider->setSingleStep(1);
    slider->setPageStep(2);
    slider->setFixedWidth(kSliderWidth);
    slider->setFocusPolicy(Qt::StrongFocus);
    slider->setAccessibleName(group->toolTip());
    m_bindings.push_back(bindSlider(*slider, m_viewModel.fontSize));

    auto* const layout = groupIn(group, kTextSizeSpacing);
    layout->addWidget(new SymbolLabel(Symbol::TextSmaller, kSmallSymbolSize, group));
    layout->addWidget(slider);
    layout->addWidget(new SymbolLabel(Symbol::TextLarger, kSmallSymbolSize, group));
    row.addWidget(group);
}

void ToolbarRow::addLevelGroup(QHBoxLayout& row)
{
    auto* const group = new QWidget(this);
    auto* const layout = groupIn(group, kLevelSpacing);
    addToggle(*layout, m_viewModel.showDeprecated,
              {Symbol::ShowDeprecated, kLevelSymbolSize, tr("Afficher les lignes PHP Deprecated")});
    addToggle(*layout, m_viewModel.showWarning,
              {Symbol::ShowWarning, kLevelSymbolSize, tr("Afficher les lignes PHP Warning")});
    addToggle(*layout, m_viewModel.showNotice,
              {Symbol::ShowNotice, kLevelSymbolSize, tr("Afficher les lignes PHP Notice")});
    addToggle(*layout, m_viewModel.onlyErrors,
              {Symbol::OnlyErrors, kLevelSymbolSize, tr("Afficher uniquement Fatal/Error")});
    row.addWidget(group);
}

void ToolbarRow::addSearchField(QHBoxLayout& row)
{
    m_searchField = new ToolbarSearchField(this);
    m_bindings.push_back(bindText(m_searchField->edit(), m_viewModel.query));
    m_bindings.push_back(m_viewModel.undecidedLines.subscribeDistinct(
        [this](qint64 count) { m_searchField->setNote(undecidedText(count)); }));
    row.addWidget(m_searchField, 1);
}

void ToolbarRow::addClearButton(QHBoxLayout& row)
{
    auto* const clear = new ToolbarButton(
        ToolbarButton::Kind::Action, {Symbol::Clear, kSymbolSize, tr("Vider le contenu")}, this);
    connect(clear, &QToolButton::clicked, this, [this] { m_viewModel.clearContent(); });
    m_bindings.push_back(m_viewModel.lines.subscribe(
        [clear](const LogLines& lines) { clear->setEnabled(!lines.isEmpty()); }));
    row.addWidget(clear);
}

ToolbarButton* ToolbarRow::addToggle(QHBoxLayout& row, Published<bool>& field,
                                     const ToolbarButton::Content& content)
{
    auto* const toggle =
        new ToolbarButton(ToolbarButton::Kind::Toggle, content, row.parentWidget());
    m_bindings.push_back(bindToggle(*toggle, field));
    row.addWidget(toggle);
    return toggle;
}

} // namespace quillon
