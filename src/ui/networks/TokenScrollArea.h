// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/ContentScrollArea.h"

namespace quillon {

class TokenField;

/// A field of tokens that scrolls where there are many: without scroll bars, by the wheel and by
/// the keys that move within it. A line that is cut in half tells that there are more.
class TokenScrollArea : public ContentScrollArea
{
    Q_OBJECT

public:
    /// Takes `tokens`.
    explicit TokenScrollArea(TokenField *tokens, QWidget *parent = nullptr);
};

} // namespace quillon
