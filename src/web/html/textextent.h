// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// Estimates the room that a text needs on a page, in visitors' browsers that have faces which nobody here knows. The
/// estimate is one for the widest of the faces in common use, so that a text may turn out smaller but hardly ever
/// larger. Nothing here fails. Stands on nothing.
namespace stemwright
{

/// The width of an icon among the words, with the room around it, in pixels.
inline constexpr int iconWidth = 30;

/// How many lines `html` takes, at least 1, when it is set in `fontSize` pixels and wrapped to `width` pixels: element
/// text in ASCII with character references. Of its markup, B is bold, BR, DIV, P, LI and TR begin lines, WBR allows
/// one to end and IMG is an icon; the rest is taken to have no extent.
int LinesOf(std::string_view html, int fontSize, int width);

} // namespace stemwright
