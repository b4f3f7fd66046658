// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// JPEG pictures drawn by chance, the same on every machine with the same library, and their decoding at an eighth of
/// their size. Throws std::runtime_error. Stands on libjpeg.
namespace stemwright::bench
{

/// Soft shapes of colour, with the grain of a camera's sensor on them: of `grain` 12 a picture of 12 megapixels takes
/// some 4 MB, of grain 0 a small part of that. Sides are in pixels.
std::string DrawJpeg(int width, int height, int grain, std::uint64_t seed);

/// Decodes a JPEG at an eighth of its size, the least that a thumbnail takes. Returns a number made from its pixels.
std::uint64_t DecodeEighth(std::string_view jpeg);

} // namespace stemwright::bench
