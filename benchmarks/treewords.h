// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>

/// The small pools of words, in UTF-8, that a generated tree takes its names, places and texts from.
namespace stemwright::bench
{

/// At most 256, so that a surname's place in the pool fits a byte.
std::span<const std::string_view> Surnames();
std::span<const std::string_view> MaleNames();
std::span<const std::string_view> FemaleNames();
std::span<const std::string_view> Places();
std::span<const std::string_view> Occupations();
/// The types of generic events.
std::span<const std::string_view> EventTypes();
/// Sentences of notes.
std::span<const std::string_view> Sentences();

} // namespace stemwright::bench
