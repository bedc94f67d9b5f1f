package orvane.str.diskarray;

public class FibreInformationConnector {
    public int topology_ref;
}
