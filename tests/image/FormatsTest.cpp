#include <Magick++.h>
#include <gtest/gtest.h>

#include "image/TestPictures.h"

namespace {

struct CFormat {
    ImageType type;
    const char* szExtension;
    bool bAlpha;      // the format stores alpha
    int nDifference;  // the most that a smooth picture may change; 256: it loses its colours
};

const CFormat kFormats[] = {
    {ImageType::kBmp, "bmp", false, 0},     {ImageType::kGif, "gif", false, 24},
    {ImageType::kJpeg, "jpg", false, 12},   {ImageType::kPng, "png", true, 0},
    {ImageType::kIco, "ico", true, 0},      {ImageType::kTiff, "tif", true, 0},
    {ImageType::kTga, "tga", true, 0},      {ImageType::kPcx, "pcx", false, 0},
    {ImageType::kWbmp, "wbmp", false, 256}, {ImageType::kJp2, "jp2", true, 0},
    {ImageType::kJpc, "jpc", false, 0},     {ImageType::kPgx, "pgx", false, 256},
    {ImageType::kPnm, "ppm", false, 0},     {ImageType::kRas, "ras", false, 0},
};

class Formats : public CFolderTest {
  protected:
    // Writes a picture of the codec library's own into a file.
    void Write(Magick::Image image, const char* szCoder, const std::string& strName) const {
        Magick::Blob blob;
        image.magick(szCoder);
        image.write(&blob);
        WriteBytes(Path(strName), {static_cast<const std::uint8_t*>(blob.data()), blob.length()});
    }
    CxImage Load(const std::string& strName) const {
        return LoadPicture(Path(strName), FindImageTypeOfName(strName));
    }

    static Magick::Image OfSmoothPicture() {
        const CxImage picture = SmoothPicture(41, 23);
        return Magick::Image(41, 23, "RGB", Magick::CharPixel, picture.Pixels().Bytes().data());
    }
};

TEST_F(Formats, EveryTypeOfTheTableComesBackWithItsAlphaWhereItHasOne) {
    Bytes alpha;
    for (std::size_t i = 0; i < 41 * 23; ++i) alpha.push_back(static_cast<std::uint8_t>(i * 7));
    for (const CFormat& format : kFormats) {
        SCOPED_TRACE(format.szExtension);
        CxImage picture = SmoothPicture(41, 23);
        const std::string strPath = Path(std::string("p.") + format.szExtension);
        ASSERT_EQ(FindImageTypeOfName(strPath), format.type);
        ASSERT_TRUE(picture.Save(strPath, format.type));
        const CxImage back = LoadPicture(strPath, format.type);
        ASSERT_EQ(back.GetSize(), picture.GetSize());
        EXPECT_LE(LargestDifference(back, picture), format.nDifference);

        // The file under any other type is not valid, whatever its name says.
        for (const CFormat& other : kFormats) {
            const bool bOneFamily = (format.type == ImageType::kJp2 || format.type == ImageType::kJpc) &&
                                    (other.type == ImageType::kJp2 || other.type == ImageType::kJpc);
            if (other.type == format.type || bOneFamily) continue;
            EXPECT_FALSE(CxImage(strPath, other.type).IsValid()) << other.szExtension;
        }

        // The same picture makes the same file at any time.
        const Bytes file = BytesOf(strPath);
        for (const std::string_view strTime : {"date:", "tIME"}) {
            const auto it = std::search(file.begin(), file.end(), strTime.begin(), strTime.end());
            EXPECT_EQ(it, file.end()) << strTime;
        }

        if (format.type == ImageType::kPng) {
            const Bytes density = {'p', 'H', 'Y', 's', 0, 0, 0x0E, 0xC3, 0, 0, 0x0E, 0xC3, 1};
            EXPECT_NE(std::search(file.begin(), file.end(), density.begin(), density.end()), file.end())
                << "96 dots to an inch, told by the metre";
        }

        // Cut files, from the header to the last quarter.
        for (std::size_t n = 0; n <= file.size() * 3 / 4; n += file.size() / 16 + 1) {
            WriteBytes(strPath, std::span(file).first(n));
            EXPECT_FALSE(CxImage(strPath, format.type).IsValid()) << n << " of " << file.size();
        }

        ASSERT_TRUE(picture.SetAlpha(alpha));
        ASSERT_TRUE(picture.Save(strPath, format.type));
        const CxImage glass = LoadPicture(strPath, format.type);
        ASSERT_TRUE(glass.IsValid());
        if (format.bAlpha) {
            EXPECT_TRUE(std::ranges::equal(glass.Alpha(), alpha));
            EXPECT_EQ(glass.Pixels(), picture.Pixels()) << "colours under glass stay";
        } else if (format.type != ImageType::kGif) {
            EXPECT_FALSE(glass.HasAlpha());
            EXPECT_LE(LargestDifference(glass, picture), format.nDifference);
        }
        ASSERT_TRUE(picture.SetAlpha({}));
        EXPECT_FALSE(picture.HasAlpha());
    }
}

TEST_F(Formats, WhatCannotBeWrittenOrReadFails) {
    const CxImage picture = SmoothPicture(9, 9);
    for (const ImageType type : {ImageType::kUnknown, ImageType::kWmf, static_cast<ImageType>(99)}) {
        EXPECT_FALSE(picture.Save(Path("p"), type));
    }
    EXPECT_FALSE(CxImage().Save(Path("p"), ImageType::kPng));
    EXPECT_FALSE(SmoothPicture(300, 300).Save(Path("p"), ImageType::kIco))
        << "an icon has at most 256 by 256";
    EXPECT_FALSE(SmoothPicture(65501, 1).Save(Path("p"), ImageType::kJpeg));
    EXPECT_TRUE(Listing().empty());
}

// A red box on a page of 200 by 100 pixels at 72 to the inch; the decoder shows the part that is drawn on.
const Bytes kMetafile = {0xD7, 0xCD, 0xC6, 0x9A, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xC8, 0x00, 0x64, 0x00,
                         0x48, 0x00, 0x00, 0x00, 0x00, 0x00, 0xF5, 0x57, 0x01, 0x00, 0x09, 0x00, 0x00, 0x03,
                         0x2C, 0x00, 0x00, 0x00, 0x02, 0x00, 0x07, 0x00, 0x00, 0x00, 0x00, 0x00, 0x04, 0x00,
                         0x00, 0x00, 0x03, 0x01, 0x08, 0x00, 0x05, 0x00, 0x00, 0x00, 0x0B, 0x02, 0x00, 0x00,
                         0x00, 0x00, 0x05, 0x00, 0x00, 0x00, 0x0C, 0x02, 0x64, 0x00, 0xC8, 0x00, 0x07, 0x00,
                         0x00, 0x00, 0xFC, 0x02, 0x00, 0x00, 0xFF, 0x00, 0x00, 0x00, 0x00, 0x00, 0x04, 0x00,
                         0x00, 0x00, 0x2D, 0x01, 0x00, 0x00, 0x07, 0x00, 0x00, 0x00, 0x1B, 0x04, 0x5A, 0x00,
                         0x96, 0x00, 0x0A, 0x00, 0x14, 0x00, 0x03, 0x00, 0x00, 0x00, 0x00, 0x00};

TEST_F(Formats, MetafilesAreReadAndNeverWritten) {
    WriteBytes(Path("a.wmf"), kMetafile);
    const CxImage image = Load("a.wmf");
    ASSERT_EQ(image.GetSize(), (CSize{200, 100}));
    EXPECT_EQ(image.GetPixelColor(85, 50), (CColor{255, 0, 0}));
    EXPECT_FALSE(image.Save(Path("b.wmf"), ImageType::kWmf));
    WriteBytes(Path("a.wmf"), std::span(kMetafile).first(60));
    EXPECT_FALSE(Load("a.wmf").IsValid());

    std::filesystem::copy_file(Path("a.wmf"), Path("a.emf"));
    EXPECT_FALSE(Load("a.emf").IsValid());
    EXPECT_EQ(Listing(), (std::set<std::string>{"a.emf", "a.wmf"}));
}

// A script, a text, a vector picture and an address under each of the names must not be followed.
TEST_F(Formats, ContentNeverChoosesTheDecoder) {
    const char* const kTexts[] = {"<svg xmlns='http://www.w3.org/2000/svg' width='5' height='5'/>",
                                  "push graphic-context\nviewbox 0 0 9 9\nimage over 0,0 0,0 '/etc/passwd'\n",
                                  "<?xml version='1.0'?><image size='5x5'><read filename='xc:red'/></image>",
                                  "%!PS-Adobe-3.0\nshowpage\n",
                                  "label:hello",
                                  "@/etc/passwd"};
    for (const char* const szText : kTexts) {
        WriteText(Path("p"), szText);
        for (const CFormat& format : kFormats)
            EXPECT_FALSE(CxImage(Path("p"), format.type).IsValid()) << szText;
    }
    // A name with a coder in it is a name.
    EXPECT_FALSE(CxImage("xc:red", ImageType::kPng).IsValid());
    EXPECT_FALSE(CxImage("png:" + Path("p"), ImageType::kPng).IsValid());
}

TEST_F(Formats, DepthsAndColoursComeOutRight) {
    Magick::InitializeMagick(nullptr);
    struct CCase {
        const char* szName;
        const char* szCoder;
        int nBpp;
        CColor cr;
        Magick::Image image;
    };
    const Magick::Geometry size(12, 7);
    const Magick::Image color(size, Magick::ColorRGB(200 / 255.0, 100 / 255.0, 50 / 255.0));
    const Magick::Image grey(size, Magick::ColorGray(100 / 255.0));
    const CColor crColor{200, 100, 50};
    const CColor crGrey{100, 100, 100};
    const auto with = [](Magick::Image image, auto change) {
        change(image);
        return image;
    };
    const auto depth16 = [](Magick::Image& image) { image.depth(16); };
    const auto greyType = [](Magick::Image& image) { image.type(Magick::GrayscaleType); };
    const auto interlaced = [](Magick::Image& image) { image.interlaceType(Magick::PlaneInterlace); };
    const auto ink = [](Magick::Image& image) { image.colorSpace(Magick::CMYKColorspace); };
    const CCase cases[] = {
        {"grey.png", "PNG", 8, crGrey, grey},
        {"grey16.png", "PNG", 8, crGrey, with(with(grey, depth16), greyType)},
        {"color16.png", "PNG48", 24, crColor, with(color, depth16)},
        {"interlaced.png", "PNG24", 24, crColor, with(color, interlaced)},
        {"palette.png", "PNG8", 8, crColor, color},
        {"color16.tif", "TIFF", 24, crColor, with(color, depth16)},
        {"ink.tif", "TIFF", 24, crColor, with(color, ink)},
        {"grey.tif", "TIFF", 8, crGrey, with(grey, greyType)},
        {"grey16.pgm", "PGM", 8, crGrey, with(grey, depth16)},
        {"interlaced.gif", "GIF", 1, crColor, with(color, interlaced)},
        {"old.bmp", "BMP2", 24, crColor, color},
        {"rle.tga", "TGA", 24, crColor,
         with(color, [](Magick::Image& i) { i.compressType(Magick::RLECompression); })},
    };
    for (const CCase& c : cases) {
        SCOPED_TRACE(c.szName);
        Write(c.image, c.szCoder, c.szName);
        CxImage image = Load(c.szName);
        ASSERT_EQ(image.GetSize(), (CSize{12, 7}));
        for (int x = 0; x < 12; ++x) {
            const CColor cr = image.GetPixelColor(x, x % 7);
            EXPECT_NEAR(cr.r, c.cr.r, 1);
            EXPECT_NEAR(cr.g, c.cr.g, 1);
            EXPECT_NEAR(cr.b, c.cr.b, 1);
        }
        EXPECT_EQ(image.GetBpp(), c.nBpp);
        // A picture that was changed has 24 bits, in whatever way.
        CxImage written = image, scaled = image, turned = image, replaced = image;
        written.SetPixelColor(0, 0, {});
        ASSERT_TRUE(scaled.Resample(11, 7) && turned.Flip() && replaced.ReplacePixels(image.Pixels()));
        ASSERT_TRUE(image.HistogramEqualize());
        for (const CxImage* const p : {&image, &written, &scaled, &turned, &replaced})
            EXPECT_EQ(p->GetBpp(), 24);
    }

    // A palette of sixteen colours in a file of four bits a pixel.
    Magick::Image few = OfSmoothPicture();
    few.quantizeColors(16);
    few.quantizeDither(false);
    few.quantize();
    Write(few, "BMP3", "few.bmp");
    EXPECT_EQ(Load("few.bmp").GetBpp(), 4);
}

TEST_F(Formats, OfSeveralPicturesTheFirstIsTaken) {
    std::vector<Magick::Image> images = {OfSmoothPicture(),
                                         Magick::Image(Magick::Geometry(5, 5), Magick::Color("red"))};
    for (const char* const szName : {"many.gif", "many.tif"}) {
        for (Magick::Image& image : images)
            image.magick(FindImageTypeOfName(szName) == ImageType::kGif ? "GIF" : "TIFF");
        Magick::Blob blob;
        Magick::writeImages(images.begin(), images.end(), &blob, true);
        WriteBytes(Path(szName), {static_cast<const std::uint8_t*>(blob.data()), blob.length()});
        EXPECT_LE(LargestDifference(Load(szName), SmoothPicture(41, 23)), 24) << szName;
    }
}

}  // namespace
