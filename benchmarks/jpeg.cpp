// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "jpeg.h"

#include "random.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <vector>

#include <jpeglib.h>

namespace stemwright::bench
{

namespace
{

[[noreturn]] void ThrowJpegError(j_common_ptr codec)
{
    char text[JMSG_LENGTH_MAX];
    codec->err->format_message(codec, text);
    throw std::runtime_error(text);
}

jpeg_error_mgr* Throwing(jpeg_error_mgr& errors)
{
    jpeg_std_error(&errors);
    errors.error_exit = &ThrowJpegError;
    return &errors;
}

struct FreeBytes {
    void operator()(unsigned char* bytes) const { std::free(bytes); }
};

} // namespace

std::string DrawJpeg(int width, int height, int grain, std::uint64_t seed)
{
    constexpr int quality = 88;
    constexpr std::size_t colours = 3;
    Random random(seed);
    const double turn = 1 + random.below(100) / 25.0;
    jpeg_error_mgr errors{};
    jpeg_compress_struct codec{};
    codec.err = Throwing(errors);
    jpeg_create_compress(&codec);
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&codec, &bytes, &size);
    codec.image_width = static_cast<JDIMENSION>(width);
    codec.image_height = static_cast<JDIMENSION>(height);
    codec.input_components = colours;
    codec.in_color_space = JCS_RGB;
    jpeg_set_defaults(&codec);
    jpeg_set_quality(&codec, quality, TRUE);
    jpeg_start_compress(&codec, TRUE);
    std::vector<JSAMPLE> line(static_cast<std::size_t>(width) * colours);
    std::vector<double> across(static_cast<std::size_t>(width));
    for (std::size_t x = 0; x < across.size(); ++x) {
        across[x] = std::sin(turn * 6 * static_cast<double>(x) / width);
    }
    for (int y = 0; y < height; ++y) {
        const double down = std::cos(turn * 5 * y / height);
        for (std::size_t x = 0; x < across.size(); ++x) {
            const int noise = grain == 0 ? 0 : static_cast<int>(random.next() >> 40U) % grain;
            for (std::size_t colour = 0; colour < colours; ++colour) {
                const double shade = 120 + 50 * across[x] * down + 20 * down * static_cast<double>(colour);
                line[x * colours + colour] = static_cast<JSAMPLE>(shade + noise);
            }
        }
        JSAMPROW row = line.data();
        jpeg_write_scanlines(&codec, &row, 1);
    }
    jpeg_finish_compress(&codec);
    jpeg_destroy_compress(&codec);
    const std::unique_ptr<unsigned char, FreeBytes> owned(bytes);
    return {reinterpret_cast<const char*>(bytes), size};
}

std::uint64_t DecodeEighth(std::string_view jpeg)
{
    jpeg_error_mgr errors{};
    jpeg_decompress_struct codec{};
    codec.err = Throwing(errors);
    jpeg_create_decompress(&codec);
    jpeg_mem_src(&codec, reinterpret_cast<const unsigned char*>(jpeg.data()), jpeg.size());
    jpeg_read_header(&codec, TRUE);
    codec.scale_num = 1;
    codec.scale_denom = 8;
    jpeg_start_decompress(&codec);
    std::vector<JSAMPLE> line(std::size_t{codec.output_width} * static_cast<std::size_t>(codec.output_components));
    std::uint64_t sum = 0;
    while (codec.output_scanline < codec.output_height) {
        JSAMPROW row = line.data();
        jpeg_read_scanlines(&codec, &row, 1);
        sum += line.front();
    }
    jpeg_finish_decompress(&codec);
    jpeg_destroy_decompress(&codec);
    return sum;
}

} // namespace stemwright::bench
