package orvane.str.diskarray;

public class GUIInitialize {
    public String damp_path;
}
