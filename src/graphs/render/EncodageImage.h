// A drawn picture as bytes: PNG for documents, BMP for the file that other
// programs open, and the RTF picture group of a PNG.
#pragma once

#include <QImage>
#include <cstdint>
#include <string>

namespace norvane {

// A PNG file (RGB, 8 bits a channel, resolution kept); empty on failure.
std::string EncoderPng(const QImage& image);
// A BMP file (24 bits a pixel, rows bottom-up, resolution kept); empty on failure.
std::string EncoderBmp(const QImage& image);
// {\pict\pngblip ...} of the picture, shown at its true size: its pixels
// divided by its resolution (96 dots an inch when it has none).
std::string GroupePngRtf(const QImage& image);
// The same, shown at the size given in twips.
std::string GroupePngRtf(const QImage& image, uint32_t largeurTwips, uint32_t hauteurTwips);

}  // namespace norvane
