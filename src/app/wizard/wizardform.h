// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/common/personpicking.h"
#include "store/file/familyfile.h"
#include "web/setup/setupediting.h"

#include <QtWidgets/QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QSpinBox;
class QVBoxLayout;

/// What the pages of the Create Web Pages Wizard share: the setup that is being edited, and controls that show one of
/// its columns and write it as soon as they are changed. What a column refuses is told; a text stays as it was typed,
/// with the reason below it. Stands on web/setup/setupediting.h.
namespace stemwright
{

class Notice;

struct WizardContext {
    FamilyFile& file;
    Environment& environment;
    const PersonPicker& picker;
    QString setupName;
    SetupEditing& editing;
    /// Whether new setups are to be like this one, once it is built; the last page asks.
    bool& isModel;
    /// Called after each change.
    std::function<void()> changed;
};

class WizardForm : public QWidget
{
public:
    /// `context` must outlive it.
    WizardForm(const WizardContext& context, WizardPage page);

    WizardPage page() const { return m_page; }

    /// Shows the setup as it is now.
    virtual void refresh();

    /// The control with which the page begins; null when it has none.
    QWidget* firstControl() const;

    /// Whether a text stands here that was refused.
    bool holdsRefused() const;

    /// False, after the user was told, while it does.
    bool settle();

protected:
    const WizardContext& context() const { return m_context; }

    QVBoxLayout& body() { return *m_body; }

    /// Adds a paragraph.
    QLabel* addText(const char* name, const QString& text);
    /// Adds what stands above a text box.
    QLabel* addCaption(const QString& text);
    /// Adds the text box of a caption, with further controls at its right. Its object name is "txt" and the column.
    QLineEdit* addLine(QLabel* caption, const char* column, std::initializer_list<QWidget*> beside = {});
    void addMemo(QLabel* caption, const char* column);

    /// Controls for the page to place: "spn" and the column, "chk" and the column.
    QSpinBox* number(const char* column);
    QCheckBox* yesNo(const char* column, const QString& caption);

    /// Does something to the setup, tells why if it cannot be done, and shows the outcome.
    void change(const std::function<void()>& action);

    /// Has `show` called whenever the setup is to be shown.
    void onRefresh(std::function<void()> show) { m_shows.push_back(std::move(show)); }

    QString stored(const char* column) const;

private:
    struct Line {
        QLineEdit* box;
        Notice* refusal;
    };

    std::vector<Line>::const_iterator firstRefused() const;
    void write(const Line& line, const char* column);

    const WizardContext& m_context;
    WizardPage m_page;
    QVBoxLayout* m_body;
    std::vector<Line> m_lines;
    std::vector<std::function<void()>> m_shows;
    bool m_showing = false;
};

} // namespace stemwright
