// Text between programs, as the toolkit carries it.
#pragma once

#include <QMimeData>

#include "platform/RichTextBox.h"

namespace tessaryn {

Clip ClipOf(const QMimeData& data);
bool HoldsText(const QMimeData& data);
// The caller owns it.
QMimeData* MimeDataOf(const LateClip& content);

// Offers the selection to the middle mouse button of all programs, where the desktop has that.
void OfferSelection(const RichTextBox& box);

}  // namespace tessaryn
