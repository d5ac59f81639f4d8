// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGui/QImage>

#include <memory>
#include <new>

class QString;

/*! What load() of a record gives. */
struct PixelsDeleter
{
    void operator()(char *pixels) const
    {
        ::operator delete(pixels);
    }
};
using Pixels = std::unique_ptr<char, PixelsDeleter>;

/*! The dimensions of a frame, in the words of the record. */
struct FrameSize
{
    int width = 0;
    int height = 0;
    int depth = 0; // bits of a channel

    /*! Empty if both sides know such frames: 8 or 16 bits, sides from 1 to what can be counted. Else why not. */
    QString refusal() const;

    /*! Whether the record's size in bytes, formed in 64 bits, has wrapped round: a small file would seem to fit. */
    bool isBeyondCounting() const;

    /*! "640 x 480 pixels, 8 bits a channel" */
    QString toString() const;

    bool operator==(const FrameSize &other) const = default;
};

/*! The order of the pixels that both sides have agreed on, for the help of the programs. */
QString pixelOrder();

/*!
    The pixels of a frame as they travel. Channels are R, G, B; rows run from the top, without padding; a channel of 16
    bits is in the machine's byte order: both sides run on one machine.
*/
class CPackedFrame
{
public:
    /*! Packs the memory of \a image in place where nobody shares it. What is transparent gets a white ground. */
    explicit CPackedFrame(QImage image);

    /*! Without pixels if memory did not suffice. */
    bool isNull() const;
    const char *pixels() const;
    const FrameSize &size() const;

private:
    QImage m_image; // only storage: its rows are no longer where its format has them
    FrameSize m_size;
};

/*!
    The frame as an image. 8 bits: the image takes over \a pixels, without a copy. 16 bits: a copy, because an image's
    pixels have four channels then. Null without pixels, for a size that is refused, and if memory does not suffice.
*/
QImage imageOfFrame(Pixels pixels, const FrameSize &size);
