#include "engine/store/Instance.h"

#include "engine/store/InstanceStore.h"

#include <system_error>

namespace engine {

std::shared_ptr<Instance> Instance::open(const std::filesystem::path& folder, const InstanceOptions& options) {
    const std::filesystem::path registry = InstanceStore::registryFile(folder);
    if (!std::filesystem::is_regular_file(registry)) {
        throw std::filesystem::filesystem_error("no instance", registry,
                                                std::make_error_code(std::errc::no_such_file_or_directory));
    }
    return std::make_shared<InstanceStore>(folder, options, false);
}

std::shared_ptr<Instance> Instance::create(const std::filesystem::path& folder, const InstanceOptions& options) {
    if (std::filesystem::create_directories(folder)) {
        std::filesystem::permissions(folder, std::filesystem::perms::owner_all);
    }
    return std::make_shared<InstanceStore>(folder, options, true);
}

} // namespace engine
