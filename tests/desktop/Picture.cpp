#include "desktop/Picture.h"

#include <QImage>

#include <stdexcept>

namespace desktop {

void takePicture(const XConnection& x, const std::filesystem::path& file) {
    constexpr std::uint32_t kAllPlanes = ~0U;
    const auto asked = xcb_get_geometry(x.server(), x.root());
    const Owned<xcb_get_geometry_reply_t> screen(xcb_get_geometry_reply(x.server(), asked, nullptr));
    if (!screen) {
        throw std::runtime_error("The display is gone.");
    }
    const auto image = xcb_get_image(x.server(), XCB_IMAGE_FORMAT_Z_PIXMAP, x.root(), 0, 0, screen->width,
                                     screen->height, kAllPlanes);
    const Owned<xcb_get_image_reply_t> points(xcb_get_image_reply(x.server(), image, nullptr));
    std::filesystem::create_directories(file.parent_path());
    const bool written = points && QImage(xcb_get_image_data(points.get()), screen->width, screen->height,
                                          QImage::Format_RGB32)
                                       .save(QString::fromStdString(file.string()));
    if (!written) {
        throw std::runtime_error("No picture of the screen: " + file.string());
    }
}

} // namespace desktop
