set(scale_bar_test_sources)
