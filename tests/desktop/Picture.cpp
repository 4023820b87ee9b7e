#include "desktop/Picture.h"

#include <stdexcept>

namespace desktop {

QImage picture(const XConnection& x) {
    constexpr std::uint32_t kAllPlanes = ~0U;
    const auto size = xcb_get_geometry(x.server(), x.root());
    const Owned<xcb_get_geometry_reply_t> screen(xcb_get_geometry_reply(x.server(), size, nullptr));
    if (!screen) {
        throw std::runtime_error("The display is gone.");
    }
    const auto asked =
        xcb_get_image(x.server(), XCB_IMAGE_FORMAT_Z_PIXMAP, x.root(), 0, 0, screen->width, screen->height, kAllPlanes);
    const Owned<xcb_get_image_reply_t> points(xcb_get_image_reply(x.server(), asked, nullptr));
    if (!points) {
        throw std::runtime_error("The screen can't be read.");
    }
    const QImage lent(xcb_get_image_data(points.get()), screen->width, screen->height, QImage::Format_RGB32);
    return lent.copy();
}

void writePicture(const QImage& picture, const std::filesystem::path& file) {
    std::filesystem::create_directories(file.parent_path());
    if (!picture.save(QString::fromStdString(file.string()))) {
        throw std::runtime_error("The picture can't be written: " + file.string());
    }
}

} // namespace desktop
