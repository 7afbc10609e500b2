"""What benchmarks/run is made of."""
