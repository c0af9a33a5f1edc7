"""What umbra-rc and umbra-import are made of."""
