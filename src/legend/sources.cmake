set(legend_sources)
