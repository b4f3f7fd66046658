// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "stage.h"

/// The pairs about persons and pictures, each at one size that stands in the name of its lines. What is inside the
/// timings stands in README.md. Throws std::runtime_error when a program fails. Stands on the stage.
namespace stemwright::bench
{

/// The bytes on the tmpfs that the largest of them needs.
inline constexpr std::uint64_t albumNeeds = 4'500'000'000;

/// `stemwright-cli import-album` of 3,000 pictures with 20,000 persons against reading the album with libmdb and
/// inserting the same rows.
void MeasureOldAlbum(const Bench& bench, Table& table);

/// Thumbnails of photos of 12 megapixels against decoding them at an eighth of their size.
void MeasureThumbnails(const Bench& bench, Table& table);

/// A keystroke of the name search against a scan, and the slowest keystrokes.
void MeasureNames(const Bench& bench, Table& table);

/// A large family file opened to its list of pictures against reading what the list shows.
void MeasureOpening(const Bench& bench, Table& table);

/// The list and the gallery of an album of large pictures against those of an album of small ones.
void MeasureLargePictures(const Bench& bench, Table& table);

/// Publishing an album against copying the site.
void MeasurePublishedAlbum(const Bench& bench, Table& table);

/// The main window's start against a bare window that shows the same, and the slowest of the things that are done most
/// in windows.
void MeasureWindows(const Bench& bench, Table& table);

/// Publishing a tree with the window that shows how it proceeds against publishing without it.
void MeasureProgress(const Bench& bench, Table& table);

} // namespace stemwright::bench
