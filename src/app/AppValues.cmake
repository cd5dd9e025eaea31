# The two plain values of app/ that everything may read: a target of their own, so that app/ is
# the roof of the house and not its floor as well.
quillmere_folder(app-values
  HEADERS app/AppCapabilities.h app/AppSection.h
  SOURCES app/AppSection.cpp
  LINK Qt6::Core)
