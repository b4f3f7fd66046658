// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "index/nameindex.h"

#include "base/text.h"

#include <numeric>

namespace stemwright
{

namespace
{

/// The columns of the texts.
enum TextColumn : std::size_t { birthDate, deathDate, address, phone, textColumns };

/// Appends a key by which texts sort as the family file's queries sort them: Null before all others.
void AppendSortKey(std::string& key, const std::optional<std::string_view>& utf8)
{
    if (utf8) {
        const QByteArray bytes = CollationKey(QString::fromUtf8(*utf8));
        key.append(1, '\1').append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    }
    // No key holds a zero byte, so that a part that is shorter sorts first whatever follows.
    key.append(1, '\0');
}

std::optional<std::string_view> Cell(const Statement& row, int column)
{
    return row.isNull(column) ? std::nullopt : std::optional(row.utf8(column));
}

/// Names are for the most part plain ASCII, which folds a letter at a time.
std::string Folded(std::string_view utf8)
{
    std::string folded(utf8);
    for (char& character : folded) {
        if (static_cast<unsigned char>(character) >= 0x80) {
            return Pattern::folded(QString::fromUtf8(utf8)).toStdString();
        }
        character = static_cast<char>(character >= 'A' && character <= 'Z' ? character + ('a' - 'A') : character);
    }
    return folded;
}

} // namespace

NameIndex::NameIndex() : m_texts(textColumns) {}

NameIndex NameIndex::load(Connection& connection, NameForm form)
{
    NameIndex index;
    ByteRows sortKeys;
    Statement select =
        connection.prepare(QStringLiteral("SELECT Id, %1, BIRT_Date, DEAT_Date, Address, Phone FROM Indi ORDER BY Id")
                               .arg(fullNameColumns));
    std::string name;
    std::string key;
    while (select.step()) {
        index.m_ids.push_back(select.integer(0));
        name.clear();
        AppendFullName(name, select, 1, form);
        index.m_foldedNames.append(Folded(name));
        index.m_names.append(name);
        index.m_texts.appendRow(select, 5);
        key.clear();
        for (const int part : {1, 3, 4}) {
            AppendSortKey(key, Cell(select, part));
        }
        sortKeys.append(key);
    }
    index.m_byFoldedName = index.m_foldedNames.sorted();
    index.m_firstOrder = sortKeys.sorted();
    index.setOrder(index.m_firstOrder);
    return index;
}

QString NameIndex::fullName(NameRow row) const
{
    return QString::fromUtf8(m_names[row]);
}

QString NameIndex::birthDate(NameRow row) const
{
    return QString::fromUtf8(m_texts.text(row, TextColumn::birthDate));
}

QString NameIndex::deathDate(NameRow row) const
{
    return QString::fromUtf8(m_texts.text(row, TextColumn::deathDate));
}

QString NameIndex::address(NameRow row) const
{
    return QString::fromUtf8(m_texts.text(row, TextColumn::address));
}

QString NameIndex::phone(NameRow row) const
{
    return QString::fromUtf8(m_texts.text(row, TextColumn::phone));
}

void NameIndex::sortBy(NameColumn column)
{
    m_sort = SortAfterClick(m_sort, column);
    const bool wasAscending = m_sort->direction == Qt::DescendingOrder;
    if (column == NameColumn::PersonId) {
        std::vector<NameRow> order(size());
        std::iota(order.begin(), order.end(), NameRow{0});
        if (wasAscending) {
            std::reverse(order.begin(), order.end());
        }
        setOrder(std::move(order));
        return;
    }
    // Individuals who are alike in the column stay in the first order.
    ByteRows keys;
    std::string key;
    for (const NameRow row : m_firstOrder) {
        key.clear();
        AppendSortKey(key, sortedText(row, column));
        if (wasAscending) {
            std::transform(key.begin(), key.end(), key.begin(), [](char byte) { return static_cast<char>(~byte); });
        }
        keys.append(key);
    }
    std::vector<NameRow> order = keys.sorted();
    std::transform(order.begin(), order.end(), order.begin(), [this](NameRow place) { return m_firstOrder[place]; });
    setOrder(std::move(order));
}

std::optional<std::string_view> NameIndex::sortedText(NameRow row, NameColumn column) const
{
    return column == NameColumn::Name
               ? m_names[row]
               : m_texts.cell(row, column == NameColumn::BirthDate ? TextColumn::birthDate : TextColumn::deathDate);
}

bool NameIndex::matches(NameRow row, const Pattern& pattern) const
{
    return pattern.matchesFolded(QString::fromUtf8(m_foldedNames[row]));
}

std::optional<std::size_t> NameIndex::findFrom(std::size_t position, const Pattern& pattern) const
{
    if (!pattern.endsFreely()) {
        for (; position < size(); ++position) {
            if (matches(m_order[position], pattern)) {
                return position;
            }
        }
        return std::nullopt;
    }
    std::size_t found = size();
    for (const NameRow row : beginningWith(pattern.beginning())) {
        const std::size_t candidate = m_position[row];
        found = candidate >= position && candidate < found ? candidate : found;
    }
    return found == size() ? std::nullopt : std::optional(found);
}

std::optional<std::size_t> NameIndex::findBefore(std::size_t position, const Pattern& pattern) const
{
    if (!pattern.endsFreely()) {
        while (position > 0) {
            if (matches(m_order[--position], pattern)) {
                return position;
            }
        }
        return std::nullopt;
    }
    std::optional<std::size_t> found;
    for (const NameRow row : beginningWith(pattern.beginning())) {
        const std::size_t candidate = m_position[row];
        found = candidate < position && candidate >= found.value_or(0) ? candidate : found;
    }
    return found;
}

void NameIndex::setOrder(std::vector<NameRow> order)
{
    m_order = std::move(order);
    m_position.resize(m_order.size());
    for (std::size_t position = 0; position < m_order.size(); ++position) {
        m_position[m_order[position]] = static_cast<std::uint32_t>(position);
    }
}

std::span<const NameRow> NameIndex::beginningWith(QStringView foldedBeginning) const
{
    const QByteArray bytes = foldedBeginning.toUtf8();
    const std::string_view wanted(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    const auto nameStart = [this, &wanted](NameRow row) { return m_foldedNames[row].substr(0, wanted.size()); };
    const auto first = std::partition_point(m_byFoldedName.begin(), m_byFoldedName.end(),
                                            [&](NameRow row) { return nameStart(row) < wanted; });
    const auto last =
        std::partition_point(first, m_byFoldedName.end(), [&](NameRow row) { return nameStart(row) == wanted; });
    return {first, last};
}

bool OpenNameIndex(std::optional<NameIndex>& index, Connection& connection)
{
    index.reset();
    if (connection.hasTable(u"Indi")) {
        index = NameIndex::load(connection);
        if (index->size() == 0) {
            index.reset();
        }
    }
    return index.has_value();
}

} // namespace stemwright
