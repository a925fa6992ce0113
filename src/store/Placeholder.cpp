namespace tarn {}
