set(legend_test_sources)
