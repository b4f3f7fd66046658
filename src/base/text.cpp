// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/text.h"

#include <unicode/ucol.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <stdexcept>

namespace stemwright
{

namespace
{

struct CloseCollator {
    void operator()(UCollator* collator) const { ucol_close(collator); }
};

using CollatorHandle = std::unique_ptr<UCollator, CloseCollator>;

CollatorHandle OpenRootCollator()
{
    UErrorCode status = U_ZERO_ERROR;
    // The empty name is the root order; a null pointer would be the user's locale.
    CollatorHandle collator(ucol_open("", &status));
    if (U_FAILURE(status)) {
        throw std::runtime_error("The collation data of the ICU library is missing.");
    }
    ucol_setStrength(collator.get(), UCOL_SECONDARY);
    return collator;
}

/// Opening takes thousands of times as long as comparing, and an open collator is never changed.
const UCollator* RootCollator()
{
    static const CollatorHandle collator = OpenRootCollator();
    return collator.get();
}

template <typename View>
View WithoutTrailingBlanks(View text)
{
    while (!text.empty() && text.back() == ' ') {
        text = text.substr(0, text.size() - 1);
    }
    return text;
}

std::u16string_view Units(QStringView text)
{
    return WithoutTrailingBlanks(std::u16string_view(text.utf16(), static_cast<std::size_t>(text.size())));
}

} // namespace

int CompareTexts(QStringView first, QStringView second)
{
    const std::u16string_view left = Units(first);
    const std::u16string_view right = Units(second);
    return ucol_strcoll(RootCollator(), left.data(), static_cast<int32_t>(left.size()), right.data(),
                        static_cast<int32_t>(right.size()));
}

int CompareTexts(std::string_view first, std::string_view second)
{
    const std::string_view left = WithoutTrailingBlanks(first);
    const std::string_view right = WithoutTrailingBlanks(second);
    UErrorCode status = U_ZERO_ERROR;
    return ucol_strcollUTF8(RootCollator(), left.data(), static_cast<int32_t>(left.size()), right.data(),
                            static_cast<int32_t>(right.size()), &status);
}

bool SameName(QStringView first, QStringView second)
{
    return CompareTexts(first, second) == 0;
}

QByteArray CollationKey(QStringView text)
{
    const std::u16string_view units = Units(text);
    std::array<uint8_t, 256> buffer{};
    const auto length = static_cast<int32_t>(units.size());
    const int32_t size =
        ucol_getSortKey(RootCollator(), units.data(), length, buffer.data(), static_cast<int32_t>(buffer.size()));
    // The size counts a zero byte at the end, which the key does not need.
    QByteArray key(size - 1, Qt::Uninitialized);
    if (static_cast<std::size_t>(size) <= buffer.size()) {
        std::copy_n(buffer.data(), size - 1, key.data());
        return key;
    }
    key.resize(size);
    ucol_getSortKey(RootCollator(), units.data(), length, reinterpret_cast<uint8_t*>(key.data()), size);
    key.chop(1);
    return key;
}

bool IsAscii(std::string_view bytes)
{
    constexpr quint64 highBits = 0x8080808080808080U;
    std::size_t position = 0;
    for (; position + sizeof(quint64) <= bytes.size(); position += sizeof(quint64)) {
        quint64 word = 0;
        std::memcpy(&word, bytes.data() + position, sizeof word);
        if ((word & highBits) != 0) {
            return false;
        }
    }
    return std::none_of(bytes.begin() + static_cast<std::ptrdiff_t>(position), bytes.end(),
                        [](char byte) { return static_cast<unsigned char>(byte) >= 0x80; });
}

} // namespace stemwright
