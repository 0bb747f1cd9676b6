# The libraries' headers that most sources include take longer to read than the sources themselves, so
# they are compiled once for all folders. Sources still include what they use. The JSON library is left
# out: with it, all sources would take half a second longer, those that do not use it as well.
file(WRITE ${CMAKE_BINARY_DIR}/precompiled.cpp "")
add_library(quillon_precompiled STATIC ${CMAKE_BINARY_DIR}/precompiled.cpp)
set_target_properties(quillon_precompiled PROPERTIES AUTOMOC OFF)
# Of Qt no more than the core: the compiler refuses what was compiled with more modules than a source has.
target_link_libraries(quillon_precompiled PRIVATE quillon_compiler QCoro6::Core)
target_precompile_headers(quillon_precompiled PRIVATE
    <QCoroFuture> <QCoroTask> <QFuture> <QObject> <QTimer> <QUuid>
    <algorithm> <array> <chrono> <deque> <filesystem> <functional> <map> <memory> <mutex> <optional>
    <string> <string_view> <thread> <utility> <variant> <vector>)
