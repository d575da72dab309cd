// SPDX-License-Identifier: MIT
#pragma once

#include "render/attributed_string.h"

#include <QImage>
#include <QTextDocument>
#include <QTextEdit>

#include <memory>

namespace quillon::bench {

// The same text in a QTextEdit: what the log view would be without our own layout and painting.
class ReferenceView {
public:
    explicit ReferenceView(QSize size);
    ~ReferenceView();

    // Replaces the text, with the colours and weights of its runs, lays it out, scrolls to the end
    // and paints into an image.
    void show(const AttributedString& text, bool isWrapped);

private:
    std::unique_ptr<QTextDocument> m_document;
    QTextEdit m_edit;
    QImage m_image;
};

} // namespace quillon::bench
