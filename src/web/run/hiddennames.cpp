// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/run/hiddennames.h"

#include "web/run/siterun.h"

#include <QtCore/QStringList>

namespace stemwright
{

namespace
{

/// Between given name and surname there is room for further names, a title, "von der".
constexpr qsizetype furthestApart = 4;

QStringList Words(std::string_view utf8)
{
    const QString text =
        QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())).normalized(QString::NormalizationForm_KC);
    QStringList words;
    QString word;
    for (const QChar character : text + u' ') {
        if (character.isLetterOrNumber() || character.isMark() || character.isSurrogate()) {
            word += character;
        } else if (!word.isEmpty()) {
            words << word.toCaseFolded();
            word.clear();
        }
    }
    return words;
}

QStringList NameWords(const SiteRun& run, TreePosition person, std::size_t column)
{
    return Words(run.texts.individual(person, column).value_or(""));
}

} // namespace

HiddenNames::HiddenNames(const SiteRun& run)
{
    for (TreePosition person = 0; person < run.tree.individuals(); ++person) {
        if (!run.mayBeNamed(person)) {
            add(NameWords(run, person, individualcolumn::givenName), NameWords(run, person, individualcolumn::surname));
        }
    }
}

void HiddenNames::add(const QStringList& givenNames, const QStringList& surnames)
{
    if (givenNames.isEmpty() || surnames.isEmpty()) {
        m_wholeNames << (givenNames + surnames).join(u' ');
        return;
    }
    for (const QString& given : givenNames) {
        for (const QString& surname : surnames) {
            m_pairs << given + u' ' + surname << surname + u' ' + given << given + surname << surname + given;
        }
    }
}

bool HiddenNames::isAnyNamedIn(std::string_view text) const
{
    if (m_pairs.isEmpty() && m_wholeNames.isEmpty()) {
        return false;
    }
    const QStringList words = Words(text);
    if (!words.isEmpty() && m_wholeNames.contains(words.join(u' '))) {
        return true;
    }
    for (qsizetype first = 0; first < words.size(); ++first) {
        if (m_pairs.contains(words[first])) {
            return true;
        }
        const qsizetype end = std::min(first + furthestApart + 1, words.size());
        for (qsizetype second = first + 1; second < end; ++second) {
            if (m_pairs.contains(words[first] + u' ' + words[second])) {
                return true;
            }
        }
    }
    return false;
}

bool HiddenNames::isAnyNamedIn(std::string_view text, const SiteRun& run,
                               const std::vector<TreePosition>& inPicture) const
{
    if (isAnyNamedIn(text)) {
        return true;
    }
    QStringList hidden;
    QStringList open;
    for (const TreePosition person : inPicture) {
        (run.mayBeNamed(person) ? open : hidden) += NameWords(run, person, individualcolumn::givenName);
    }
    if (hidden.isEmpty()) {
        return false;
    }
    const QStringList words = Words(text);
    return std::any_of(hidden.begin(), hidden.end(), [&](const QString& name) {
        // An initial is no name that would tell anybody apart.
        return name.size() > 1 && words.contains(name) && !open.contains(name);
    });
}

} // namespace stemwright
