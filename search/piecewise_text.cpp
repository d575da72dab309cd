// SPDX-License-Identifier: MIT
#include "search/piecewise_text.h"

#include "search/matching_budget.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr qsizetype kPiece = MatchingBudget::kPieceLength;

} // namespace

PiecewiseText::PiecewiseText(QStringView text, MatchingBudget& budget) : m_source{text, budget}
{
    UErrorCode status = U_ZERO_ERROR;
    utext_setup(&m_handle, 0, &status);
    m_handle.pFuncs = &functions();
    m_handle.context = &m_source;
    showPiece(m_handle, 0, std::min(kPiece, text.size()), 0);
}

PiecewiseText::~PiecewiseText()
{
    utext_close(&m_handle);
}

const PiecewiseText::Source& PiecewiseText::sourceOf(const UText& handle)
{
    return *static_cast<const Source*>(handle.context);
}

void PiecewiseText::showPiece(UText& handle, qsizetype start, qsizetype end, qsizetype at)
{
    handle.chunkContents = sourceOf(handle).text.utf16() + start;
    handle.chunkNativeStart = start;
    handle.chunkNativeLimit = end;
    handle.chunkLength = static_cast<int32_t>(end - start);
    handle.nativeIndexingLimit = handle.chunkLength;
    handle.chunkOffset = static_cast<int32_t>(at - start);
}

UText* PiecewiseText::clone(UText* copy, const UText* handle, UBool isDeep, UErrorCode* status)
{
    if (isDeep) {
        *status = U_UNSUPPORTED_ERROR;
        return copy;
    }
    copy = utext_setup(copy, 0, status);
    if (U_FAILURE(*status)) {
        return copy;
    }
    copy->pFuncs = handle->pFuncs;
    copy->context = handle->context;
    showPiece(*copy, handle->chunkNativeStart, handle->chunkNativeLimit,
              handle->chunkNativeStart + handle->chunkOffset);
    return copy;
}

int64_t PiecewiseText::length(UText* handle)
{
    return sourceOf(*handle).text.size();
}

UBool PiecewiseText::access(UText* handle, int64_t index, UBool isForward)
{
    const Source& source = sourceOf(*handle);
    const qsizetype size = source.text.size();
    auto at = std::clamp<qsizetype>(index, 0, size);
    const bool isThere = isForward ? at < size : at > 0;
    if (isThere && !source.budget.takePiece()) {
        at = isForward ? size - 1 : 1;
    }
    // A place between two pieces belongs to the one that is about to be read.
    const qsizetype inside = isThere ? (isForward ? at : at - 1) : std::max<qsizetype>(0, at - 1);
    const qsizetype start = inside / kPiece * kPiece;
    showPiece(*handle, start, std::min(start + kPiece, size), at);
    return isThere;
}

int32_t PiecewiseText::extract(UText* handle, int64_t start, int64_t end, UChar* copy,
                               int32_t capacity, UErrorCode* status)
{
    const QStringView text = sourceOf(*handle).text;
    const auto from = std::clamp<qsizetype>(start, 0, text.size());
    const auto to = std::clamp<qsizetype>(end, from, text.size());
    const QStringView part = text.sliced(from, to - from);
    const auto length = static_cast<int32_t>(part.size());
    std::copy_n(part.utf16(), std::min(length, capacity), copy);
    access(handle, to, true);
    if (length < capacity) {
        copy[length] = 0;
    } else {
        *status = length == capacity ? U_STRING_NOT_TERMINATED_WARNING : U_BUFFER_OVERFLOW_ERROR;
    }
    return length;
}

const UTextFuncs& PiecewiseText::functions()
{
    static const UTextFuncs functions{
        .tableSize = sizeof(UTextFuncs),
        .reserved1 = 0,
        .reserved2 = 0,
        .reserved3 = 0,
        .clone = &PiecewiseText::clone,
        .nativeLength = &PiecewiseText::length,
        .access = &PiecewiseText::access,
        .extract = &PiecewiseText::extract,
        .replace = nullptr,
        .copy = nullptr,
        .mapOffsetToNative = nullptr,
        .mapNativeIndexToUTF16 = nullptr,
        .close = nullptr,
        .spare1 = nullptr,
        .spare2 = nullptr,
        .spare3 = nullptr,
    };
    return functions;
}

} // namespace quillon
