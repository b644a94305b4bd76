#pragma once

namespace tarn {

class OVEncryptionCoreManagerProtocol;

/// No context is served by this manager any more. Any thread.
void endEncryptionService(const OVEncryptionCoreManagerProtocol& manager);

} // namespace tarn
