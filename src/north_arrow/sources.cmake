set(north_arrow_sources)
