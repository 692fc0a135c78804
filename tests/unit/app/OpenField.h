// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/graph/ManagedObjectContext.h"
#include "store/model/QuillonModel.h"

namespace quillon::test {

/// A text field that is being edited.
class OpenField : public ManagedObjectContext::Editor
{
public:
    explicit OpenField(ManagedObjectContext &context)
        : m_context(context)
    {
        m_context.addEditor(*this);
    }
    ~OpenField() override { m_context.removeEditor(*this); }
    OpenField(const OpenField &) = delete;
    OpenField &operator=(const OpenField &) = delete;

    bool commitEditing() override
    {
        if (accepts && rule) {
            rule->setValue(model::rule::name, text);
        }
        return accepts;
    }

    bool accepts = true;
    ManagedObjectPtr rule;
    QString text;

private:
    ManagedObjectContext &m_context;
};

} // namespace quillon::test
