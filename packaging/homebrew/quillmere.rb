# A formula that builds Quillmere from a source archive. Nobody has built it on macOS yet, and on
# Linux only by hand; the archive's checksum is written here when a release is made.
class Quillmere < Formula
  desc "Desktop companion that shows what brew commands do before they do it"
  homepage "https://quillmere.example/quillmere"
  url "https://quillmere.example/quillmere/quillmere-0.1.0.tar.gz"
  sha256 "0000000000000000000000000000000000000000000000000000000000000000"
  license "MIT"

  depends_on "cmake" => :build
  depends_on "ninja" => :build
  depends_on "qt"
  depends_on "simdjson"

  # Coroutines for Qt, linked statically so that nothing else finds them.
  resource "qcoro" do
    url "https://github.com/qcoro/qcoro/archive/refs/tags/v0.10.0.tar.gz"
    sha256 "0000000000000000000000000000000000000000000000000000000000000000"
  end

  def install
    resource("qcoro").stage do
      system "cmake", "-S", ".", "-B", "build", "-G", "Ninja",
             "-D", "QCORO_BUILD_EXAMPLES=OFF", "-D", "QCORO_BUILD_TESTING=OFF",
             "-D", "BUILD_SHARED_LIBS=OFF", *std_cmake_args(install_prefix: buildpath/"qcoro")
      system "cmake", "--build", "build"
      system "cmake", "--install", "build"
    end
    system "cmake", "-S", ".", "-B", "build", "-G", "Ninja", "-D", "BUILD_TESTING=OFF",
           "-D", "CMAKE_PREFIX_PATH=#{buildpath}/qcoro", *std_cmake_args
    system "cmake", "--build", "build", "--target", "quillmere"
    system "cmake", "--install", "build"
  end

  test do
    # It has a window and no options: that it starts without a display is all there is to see.
    ENV["QT_QPA_PLATFORM"] = "offscreen"
    pid = spawn bin/"quillmere"
    sleep 3
    assert_nil Process.wait(pid, Process::WNOHANG)
  ensure
    Process.kill "TERM", pid
    Process.wait pid
  end
end
