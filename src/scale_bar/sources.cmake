set(scale_bar_sources)
