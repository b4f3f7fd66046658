// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace stemwright
{

enum class WelcomeChoice { None, Create, Open, Cats };

/// The window of a start without a family file: create one, open one, or try the sample cats. None when it was closed.
WelcomeChoice AskAtWelcome(QWidget& parent);

} // namespace stemwright
